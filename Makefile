# The commands of the project. Each one installs the packages it lacks, builds what is stale, and does its work.
JOBS ?= $(shell nproc)
GENERATE = cmake

.PHONY: run build test test-sanitize bench package pictures packages clean

# A picture of the lock screen; the last line is its path.
run: build
	build/bin/lyr render -o build/lock.png

build: packages
	@$(GENERATE) --preset release
	ninja -C build -j $(JOBS)

test: build
	ctest --test-dir build --output-on-failure -j $(JOBS)

test-sanitize: packages
	@$(GENERATE) --preset sanitize
	ninja -C build-sanitize -j $(JOBS)
	ctest --test-dir build-sanitize --output-on-failure -j $(JOBS) -LE phone

bench: packages
	@$(GENERATE) --preset bench
	ninja -C build-bench -j $(JOBS) lyr_benchmarks share
	build-bench/bin/lyr_benchmarks

# The phone's own library, packed for both kinds of phone.
package: packages
	@$(GENERATE) --preset release
	ninja -C build -j $(JOBS) packages reports
	mkdir -p packages
	cp build/packages/*.deb packages/
	@ls packages/*.deb

# The pictures of the README.
pictures: build
	tools/make-pictures

packages:
	@tools/install-packages

clean:
	rm -rf build build-sanitize build-bench
