# Two commands take a fresh Debian 12 machine to a running game or a green test run.
BUILD   ?= build
TYPE    ?= Release
JOBS    ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: run test deps build bench clean

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

clean:
	rm -rf $(BUILD)
