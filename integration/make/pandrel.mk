# SPDX-License-Identifier: MIT
# Rules for GNU make: an interface file or a project to a UIL module, a module to a compiled one.
#
#   include /usr/share/pandrel/pandrel.mk
#   all: app.uid
#
# Set before or after the include: PANDREL_FLAGS (options of pandrel), UILFLAGS (options of uil).
# A project's module also depends on the interface files that the project names; say so:
#   library.uil: catalog.G members.G

# The program of the installation that this file belongs to, else the one on the path. Settled here:
# a later include would change what the last makefile is.
ifeq ($(origin PANDREL),undefined)
PANDREL := $(firstword $(wildcard $(abspath $(dir $(lastword $(MAKEFILE_LIST)))../../bin/pandrel)) pandrel)
endif
PANDREL_FLAGS ?= -quiet
UIL ?= uil
# uil can loop on a string that is not closed; no real module takes it a minute.
UIL_TIME_LIMIT ?= 60

# The module gets its name only when it is whole: pandrel empties its output before it reads.
%.uil: %.G
	$(PANDREL) $(PANDREL_FLAGS) $@.part < $<
	mv $@.part $@

# A project names its files as seen from its own folder.
%.uil: %.P
	cd $(<D) && $(PANDREL) $(PANDREL_FLAGS) $(abspath $@).part < $(<F)
	mv $@.part $@

%.uid: %.uil
	timeout $(UIL_TIME_LIMIT) $(UIL) $(UILFLAGS) -o $@ $<
