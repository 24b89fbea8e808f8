# The two commands a new user needs: `make run` and `make test`. Each installs what is missing
# first (scripts/install-deps), then configures and builds.
BUILD      ?= build
ASAN_BUILD ?= build-asan
JOBS       ?= $(shell nproc)
CMAKE_GEN  := -G Ninja

.PHONY: all deps build build-asan test test-asan run install bench fuzz coverage format check-format check-layers clean

all: build

deps:
	@scripts/install-deps

$(BUILD)/build.ninja: | deps
	cmake -S . -B $(BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: deps $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

# The core tests again under AddressSanitizer and UndefinedBehaviorSanitizer.
$(ASAN_BUILD)/build.ninja: | deps
	cmake -S . -B $(ASAN_BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=Debug -DHARNWICK_SANITIZE=ON \
	    -DHARNWICK_QT=OFF -DHARNWICK_BENCH=OFF

build-asan: deps $(ASAN_BUILD)/build.ninja
	cmake --build $(ASAN_BUILD) -j $(JOBS)

test-asan: build-asan
	cd $(ASAN_BUILD) && ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 \
	    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 ctest --output-on-failure -j $(JOBS)

test: build check-layers
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)
	$(MAKE) test-asan
	$(MAKE) fuzz FUZZ_SECONDS=10

# The editor, started in sample/ (the folder of its START.INI). Without a display it says how
# to run it under a virtual X server, and does so when xvfb-run is there.
EDITOR     := $(abspath $(BUILD))/src/harnwick
XVFB_RUN   := xvfb-run -a -s '-screen 0 1024x768x24'

run: build
	@if [ -n "$$DISPLAY" ] || [ -n "$$WAYLAND_DISPLAY" ]; then \
	    cd sample && exec $(EDITOR); \
	fi; \
	echo "run: no display here. To see the editor, run it under a virtual X server:"; \
	echo "    cd sample && $(XVFB_RUN) $(EDITOR)"; \
	if command -v xvfb-run >/dev/null; then \
	    echo "run: starting it so under xvfb-run (stop it with Ctrl-C)"; \
	    cd sample && exec $(XVFB_RUN) $(EDITOR); \
	fi

# The editor, harnwick-cli, the desktop entry, the AppStream metadata, the icons and the manual
# page, under PREFIX; with DESTDIR, under DESTDIR/PREFIX (to build a package).
PREFIX  ?= /usr/local
DESTDIR ?=

# Configured with the prefix, since the desktop entry and its launcher name installed paths.
install: build
	cmake -S . -B $(BUILD) -DCMAKE_INSTALL_PREFIX="$(PREFIX)" >/dev/null
	cmake --build $(BUILD) -j $(JOBS)
	DESTDIR="$(DESTDIR)" cmake --install $(BUILD)

# The libFuzzer targets, one per reader (clang), each run for FUZZ_SECONDS from its committed
# corpus; new inputs go to $(FUZZ_BUILD)/fuzz-corpus, findings to $(FUZZ_BUILD)/fuzz-findings.
FUZZ_BUILD   ?= build-fuzz
FUZZ_SECONDS ?= 60

$(FUZZ_BUILD)/build.ninja: | deps
	CC=clang CXX=clang++ cmake -S . -B $(FUZZ_BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	    -DHARNWICK_FUZZ=ON -DHARNWICK_QT=OFF -DHARNWICK_BENCH=OFF

fuzz: deps $(FUZZ_BUILD)/build.ninja
	cmake --build $(FUZZ_BUILD) -j $(JOBS) --target fuzz_tokenizer fuzz_target_file fuzz_oob \
	    fuzz_workspace fuzz_template fuzz_import fuzz_bmp
	fuzz/run-fuzzers.sh $(FUZZ_BUILD) $(FUZZ_SECONDS)

# Line and branch coverage of the model, the game data and the writers by every test and the
# replay of the fuzz corpora, from a gcc build of its own. Branches the compiler adds for
# exceptions and for code it proved unreachable are not counted: no file can take them.
COV_BUILD   ?= build-cov
COV_FILTERS := --filter 'src/base/' --filter 'src/model/' --filter 'src/gamedata/'

$(COV_BUILD)/build.ninja: | deps
	CC=gcc CXX=g++ cmake -S . -B $(COV_BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=Debug \
	    -DHARNWICK_COVERAGE=ON -DHARNWICK_QT=OFF -DHARNWICK_BENCH=OFF

coverage: deps $(COV_BUILD)/build.ninja
	cmake --build $(COV_BUILD) -j $(JOBS)
	find $(COV_BUILD) -name '*.gcda' -delete
	cd $(COV_BUILD) && ctest --output-on-failure -j $(JOBS)
	gcovr -r . $(COV_BUILD) $(COV_FILTERS) --exclude-throw-branches \
	    --exclude-unreachable-branches --print-summary --txt $(COV_BUILD)/coverage.txt \
	    --html-details $(COV_BUILD)/coverage.html
	@echo "coverage: per file in $(COV_BUILD)/coverage.txt, annotated in $(COV_BUILD)/coverage.html"

bench: deps
	cmake -S . -B $(BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build $(BUILD) -j $(JOBS) --target harnwick-bench harnwick-qt-bench
	$(BUILD)/bench/harnwick-bench
	@echo
	$(BUILD)/bench/harnwick-qt-bench

format:
	find src tests bench fuzz -name '*.cpp' -o -name '*.h' | xargs clang-format -i

check-format:
	find src tests bench fuzz -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run -Werror

# Every include keeps the layer rules: each folder includes only the folders below it, and
# only the Qt backend and the GUI's main include Qt.
check-layers:
	@scripts/check-layers

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD) $(COV_BUILD)
