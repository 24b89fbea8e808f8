# The two commands a new user needs: `make run` and `make test`. Each installs what is missing
# first (scripts/install-deps), then configures and builds.
BUILD      ?= build
ASAN_BUILD ?= build-asan
JOBS       ?= $(shell nproc)
CMAKE_GEN  := -G Ninja

.PHONY: all deps build build-asan test test-asan run bench fuzz format check-format check-layers clean

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

run: build
	$(BUILD)/src/cli/harnwick-cli tree sample/SAMPLE.INF sample/SAMPLE.OOB

bench: deps
	cmake -S . -B $(BUILD) $(CMAKE_GEN) -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build $(BUILD) -j $(JOBS) --target harnwick-bench
	$(BUILD)/bench/harnwick-bench

format:
	find src tests bench fuzz -name '*.cpp' -o -name '*.h' | xargs clang-format -i

check-format:
	find src tests bench fuzz -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run -Werror

# No Qt type outside the Qt backend and the GUI's main.
check-layers:
	@! grep -rnE '#\s*include\s*[<"]Q' src --include='*.h' --include='*.cpp' \
	    | grep -v '^src/platform/qt/' | grep -v 'main\.cpp:' \
	    || { echo "Qt included outside src/platform/qt/"; exit 1; }

clean:
	rm -rf $(BUILD) $(ASAN_BUILD)
