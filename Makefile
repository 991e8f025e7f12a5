# Two commands take a fresh Debian 12 machine to a running game or a green test run.
BUILD   ?= build
TYPE    ?= Release
JOBS    ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: run test deps build bench fuzz package clean

run: build
	./$(BUILD)/kelmor

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

deps:
	./scripts/install-deps

build: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=$(TYPE)
	cmake --build $(BUILD) -j $(JOBS)

# A .deb of the installed tree, in build/.
package: build
	cd $(BUILD) && cpack -G DEB

bench: build
	./$(BUILD)/bench/kelmor_bench
	./bench/demarrage.sh $(BUILD)

# libFuzzer on each file reader: the raster, score files, saved games, the settings store,
# the information cards, the site's page of games, the player's history. FUZZ_TEMPS seconds each; what each
# finds stays in build-fuzz/corpus for the next run.
FUZZ_TEMPS ?= 50
, := ,
# Full paths: a target may change the working folder, as the game does at its start.
FUZZ = cd build-fuzz && mkdir -p corpus/$(1) && $(3) ./$(1) $(CURDIR)/build-fuzz/corpus/$(1) \
	-artifact_prefix=$(CURDIR)/build-fuzz/ -max_total_time=$(FUZZ_TEMPS) $(2)
fuzz:
	./scripts/install-deps clang libclang-rt-14-dev
	CC=clang CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKELMOR_FUZZ=ON
	cmake --build build-fuzz -j $(JOBS) --target FuzzCarteZones FuzzScores FuzzPartie FuzzRegistre FuzzFiches FuzzPage FuzzHistorique
	$(call FUZZ,FuzzCarteZones,-max_len=20000 -seed_inputs=$(CURDIR)/data/KELMOR.pts)
	$(call FUZZ,FuzzScores,-max_len=12000)
	# The main window lives to the end of that run: Qt's own allocations at exit aren't leaks of ours.
	$(call FUZZ,FuzzPartie,-max_len=45000,ASAN_OPTIONS=detect_leaks=0)
	$(call FUZZ,FuzzRegistre,-max_len=4000 -dict=$(CURDIR)/tests/fuzz/registre.dict)
	$(call FUZZ,FuzzFiches,-max_len=17550 -seed_inputs=$(CURDIR)/data/KELMOR.INF$(,)$(CURDIR)/data/DRAVELN.INF)
	$(call FUZZ,FuzzPage,-max_len=40000 -dict=$(CURDIR)/tests/fuzz/page.dict)
	$(call FUZZ,FuzzHistorique,-max_len=40000 -dict=$(CURDIR)/tests/fuzz/historique.dict -seed_inputs=$(CURDIR)/data/graines/historique-v1.sqlite)

clean:
	rm -rf $(BUILD)
