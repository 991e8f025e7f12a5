# Two commands take a fresh Debian 12 machine to a running game or a green test run.
BUILD   ?= build
TYPE    ?= Release
JOBS    ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: run test deps build bench fuzz clean

run: build
	./$(BUILD)/kelmor

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

deps:
	./scripts/install-deps

build: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=$(TYPE)
	cmake --build $(BUILD) -j $(JOBS)

bench: build
	./$(BUILD)/bench/kelmor_bench

# Two minutes of libFuzzer on each file reader.
fuzz:
	./scripts/install-deps clang libclang-rt-14-dev
	CC=clang CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKELMOR_FUZZ=ON
	cmake --build build-fuzz -j $(JOBS) --target FuzzCarteZones
	cd build-fuzz && ./FuzzCarteZones -max_total_time=120 -max_len=20000

clean:
	rm -rf $(BUILD)
