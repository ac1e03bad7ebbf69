# SPDX-License-Identifier: MIT
# One word per chore. Each only wraps scripts/ and the CMake presets; `make help` lists them.

PREFIX ?= /usr/local
JOBS ?= $(shell nproc)
EXAMPLE ?= examples/hello.G

MAKEFLAGS += --no-print-directory

.PHONY: help setup setup-tests setup-fuzz setup-dev build demo test check install uninstall package package-tests
.PHONY: asan debug clang coverage bench fuzz mutants stress gallery format lint clean

help: ## this list
	@sed -n 's/^\([a-z-]*\):.*## /\1\t/p' Makefile | expand -t 14

setup: ## install the Debian packages that the build needs, and uil
	@scripts/setup

setup-tests: ## also those that the tests need
	@scripts/setup --tests

setup-fuzz: ## also the second compiler with its fuzzer
	@scripts/setup --fuzz

setup-dev: ## also those that the developers' chores need
	@scripts/setup --dev

build: setup ## the programs and what there is of the tests, in build/release
	cmake --preset release
	cmake --build --preset release -j $(JOBS)

demo: setup ## convert an example and show the result
	@scripts/step configure 'looking at the compiler and the libraries' cmake --preset release
	@scripts/step build 'building the converter (a minute or two)' \
	  cmake --build --preset release -j $(JOBS) --target pandrel pandrel-uilfix
	@scripts/demo build/release $(EXAMPLE)

test: setup-tests build ## the fast loop: all tests that need neither the sanitizers nor an X server
	ctest --preset fast

check: setup-tests build ## all tests: as built for use, then under the sanitizers
	ctest --preset release
	$(MAKE) asan

asan: setup-tests ## build and test with the sanitizers
debug: setup-tests ## build and test for the debugger
clang: setup-fuzz ## build and test with the second compiler
asan debug clang:
	cmake --preset $@
	cmake --build --preset $@ -j $(JOBS)
	ctest --preset $@

coverage: setup-dev ## run the tests with gcov; the report is build/coverage/report/index.html
	cmake --preset $@
	cmake --build --preset $@ -j $(JOBS)
	cmake --build --preset $@ --target coverage

bench: setup-dev ## measure start-up, throughput and growth
	cmake --preset $@
	cmake --build --preset $@ -j $(JOBS)
	cmake --build --preset $@ --target bench

fuzz: setup-fuzz ## a minute of fuzzing, all targets
	cmake --preset $@
	cmake --build --preset $@ -j $(JOBS)
	tests/fuzz/run --build build/fuzz

mutants: setup-tests ## change the program in 300 places, one at a time, and list what no test notices (half an hour)
	scripts/mutants

gallery: setup-tests build ## take the pictures of docs/gallery.md and README.md anew
	@scripts/gallery build/release
	@scripts/report-picture build/release

stress: setup-tests build ## the tests that take long
	ctest --test-dir build/release -L stress --output-on-failure

format: setup-dev ## reformat the C++ sources in place
	git ls-files '*.cc' '*.h' | xargs clang-format-14 -i

lint: setup-dev ## formatting, clang-tidy, manual pages, scripts' syntax
	scripts/lint

install: setup ## to PREFIX (default /usr/local), below DESTDIR if set
	@scripts/step configure 'looking at the compiler and the libraries' cmake --preset release
	@scripts/step build 'building the programs (some minutes)' \
	  cmake --build --preset release -j $(JOBS) --target programs
	@scripts/step install 'installing below $(DESTDIR)$(PREFIX)' cmake --install build/release --prefix $(PREFIX)

uninstall: ## remove what `make install` put there
	@cmake --build build/release --target uninstall

package: setup-dev ## the Debian packages, in build/packages, without running the tests
	scripts/build-packages

package-tests: setup-dev ## the same, with the tests that a package build runs
	scripts/build-packages --tests

clean: ## forget all that was built
	rm -rf build
