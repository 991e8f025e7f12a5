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
	./bench/demarrage.sh $(BUILD)

# libFuzzer on each file reader: the raster, score files, saved games, the settings store.
fuzz:
	./scripts/install-deps clang libclang-rt-14-dev
	CC=clang CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKELMOR_FUZZ=ON
	cmake --build build-fuzz -j $(JOBS) --target FuzzCarteZones FuzzScores FuzzPartie FuzzRegistre
	cd build-fuzz && ./FuzzCarteZones -max_total_time=120 -max_len=20000
	cd build-fuzz && ./FuzzScores -max_total_time=60 -max_len=12000
	# The main window lives to the end of that run: Qt's own allocations at exit aren't leaks of ours.
	cd build-fuzz && ASAN_OPTIONS=detect_leaks=0 ./FuzzPartie -max_total_time=60 -max_len=45000
	cd build-fuzz && ./FuzzRegistre -max_total_time=60 -max_len=4000

clean:
	rm -rf $(BUILD)
