# The commands of the project; each installs what it lacks (tools/setup) and builds under build/.
# Where the packages are there already or come from elsewhere: make SETUP=true ...
SETUP ?= tools/setup
JOBS ?= $(shell nproc)
# The lines of the journal that make bench converts; a million is the full size.
BENCH_LINES ?= 100000
# How long make fuzz runs.
FUZZ_SECONDS ?= 60

define compile
@cmake --preset $(1) >/dev/null
@cmake --build --preset $(1)
endef

export CMAKE_BUILD_PARALLEL_LEVEL = $(JOBS)
export CTEST_PARALLEL_LEVEL = $(JOBS)

MAKEFLAGS += --no-print-directory
.DEFAULT_GOAL = help
.PHONY: help demo build test replay-all bench fuzz format lint sanitize clean

help: ## list the commands
	@sed -n 's/^\([a-z-]*\):.* ## /  make \1\t/p' Makefile | expand -t 20

demo: build ## convert the example journal into every language, under out/demo
	@tools/demo

build: ## build the program: build/release/bin/kvmacro
	@$(SETUP) build
	$(call compile,release)

test: ## build and run every test
	@$(SETUP) test
	$(call compile,test)
	@ctest --preset test

replay-all: ## the tests, with the tools that replay VB.NET and VBA macros, too
	@$(SETUP) replay
	$(call compile,test)
	@ctest --preset test

sanitize: ## run the same tests with the address and undefined-behaviour sanitizers
	@$(SETUP) test
	$(call compile,sanitize)
	@ctest --preset sanitize

bench: ## build and run the benchmarks
	@$(SETUP) bench
	$(call compile,bench)
	@echo "== filling" && build/release/bin/fill_bench
	@echo "== conversion" && build/release/bin/conversion_bench $(BENCH_LINES)

fuzz: ## run the fuzzer on the reader and the conversion
	@$(SETUP) fuzz
	$(call compile,fuzz)
	@mkdir -p build/fuzz/corpus
	@build/fuzz/bin/journal_fuzz -max_total_time=$(FUZZ_SECONDS) -max_len=16384 -timeout=20 -print_final_stats=1 \
		-dict=tests/fuzz/journal.dict -artifact_prefix=build/fuzz/ build/fuzz/corpus tests/fuzz/corpus

format: ## lay out the sources as clang-format says
	@$(SETUP) lint
	@tools/format -i

lint: ## check layout, code (clang-tidy), scripts, the Windows files, stray paths
	@$(SETUP) lint
	@tools/lint

clean: ## remove what was built and converted
	rm -rf build out
