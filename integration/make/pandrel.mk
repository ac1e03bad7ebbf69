# SPDX-License-Identifier: MIT
# Rules for GNU make: an interface file or a project to a mended UIL module, a module to a compiled one.
#
#   include /usr/share/pandrel/pandrel.mk
#   all: app.uid
#
# A conversion runs in the folder of its input, where interfaces name their icons from and projects
# their files. All that the programs say goes to app.log beside app.uil: notes, warnings, changes by
# the mender. An icon or a project's file that is missing is told of on the terminal too.
#
# Set before or after the include:
#   PANDREL_FLAGS           options of pandrel
#   PANDREL_UILFIX          the mender; empty: modules are not mended
#   PANDREL_UILFIX_FLAGS    its options
#   UILFLAGS                options of uil
#
# A project's module also depends on the interface files that the project names; say so:
#   library.uil: catalog.G members.G

# The programs of the installation that this file belongs to, else those on the path. Settled here:
# a later include would change what the last makefile is.
pandrel_bin := $(abspath $(dir $(lastword $(MAKEFILE_LIST)))../../bin)
ifeq ($(origin PANDREL),undefined)
PANDREL := $(firstword $(wildcard $(pandrel_bin)/pandrel) pandrel)
endif
ifeq ($(origin PANDREL_UILFIX),undefined)
PANDREL_UILFIX := $(firstword $(wildcard $(pandrel_bin)/pandrel-uilfix) pandrel-uilfix)
endif
# Two conversions must not make the same bitmap at once; the folder is locked.
PANDREL_LOCK ?= $(if $(shell command -v flock),flock .)
UIL ?= uil
# uil can loop on a string that is not closed; no real module takes it a minute.
UIL_TIME_LIMIT ?= 60

# The module gets its name only when it is whole: pandrel empties its output before it reads. When it
# fails, what it said last is shown; what it says of files that are not there always.
define pandrel_convert
cd $(<D) && $(PANDREL_LOCK) $(PANDREL) $(PANDREL_FLAGS) $(abspath $@).raw < $(<F) > $(abspath $(@:.uil=.log)) 2>&1 || \
  { tail -n 5 $(abspath $(@:.uil=.log)) >&2; rm -f $(abspath $@).raw; exit 1; }
@grep -E '^Cannot (access glyph filename|open project file) ' $(@:.uil=.log) >&2 || :
$(if $(PANDREL_UILFIX),$(PANDREL_UILFIX) $(PANDREL_UILFIX_FLAGS) -o $@.mended $@.raw 2>> $(@:.uil=.log) && mv $@.mended $@.raw)
@mv $@.raw $@
endef

%.uil: %.G
	$(pandrel_convert)

%.uil: %.P
	$(pandrel_convert)

%.uid: %.uil
	timeout $(UIL_TIME_LIMIT) $(UIL) $(UILFLAGS) -o $@ $<

# Kept, with the log beside it, also where only the compiled module is asked for.
.PRECIOUS: %.uil
