# The short ways in; everything else is CMake, by the presets of CMakePresets.json.
.PHONY: help demo test format check
.DEFAULT_GOAL := help

help:
	@echo "make demo     build, bring a simulated chip up and report its tables"
	@echo "make test     build and run the tests in 64 bit"
	@echo "make format   format all C++ files"
	@echo "make check    check the format and the rule between the folders"
	@echo "Other builds: cmake --preset P && cmake --build --preset P && tools/check/run-tests P"
	@echo "with P one of release, debug, asan, release32, asan32, clang."

demo:
	@cmake/install-packages.sh build
	cmake --preset release
	cmake --build --preset release --target kestrel
	build/release/bin/kestrel demo

# Takes options of cmake in CONFIGURE.
test:
	@cmake/install-packages.sh build
	cmake --preset release $(CONFIGURE)
	cmake --build --preset release
	tools/check/run-tests release

format:
	tools/check/format --fix

check:
	tools/check/format
	tools/check/layering
