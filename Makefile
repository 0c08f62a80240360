# The two commands a newcomer types: `make run` and `make test`.
BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
WERROR := $(if $(CI),ON,OFF)
JOBS ?= $(shell nproc)

.PHONY: all deps configure build run test bench clean

all: build

deps:
	@./scripts/install-deps.sh

configure: deps
	@cmake -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) -DOVRA_WERROR=$(WERROR) >/dev/null

build: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	./$(BUILD_DIR)/ovra

# Tests run on a private X server that this target starts and stops; the
# user's display is never touched.
test: build
	./scripts/with-xserver.sh ctest --test-dir $(BUILD_DIR) --output-on-failure -j 2

bench: build
	./scripts/with-xserver.sh ./scripts/run-benchmarks.sh $(BUILD_DIR)

clean:
	rm -rf $(BUILD_DIR)
