# The commands of the project. Each one installs the packages it lacks, builds what is stale, and does its work.
JOBS ?= $(shell nproc)
GENERATE = cmake

.PHONY: run program phone build test test-sanitize test-phone bench package pictures packages clean

# A picture of the lock screen and, on a terminal, the live phone. It builds what the picture needs and nothing else.
run: program
	build/bin/lyr render -o build/lock.png
	@if [ -t 1 ]; then build/bin/lyr preview; fi

program: packages
	@$(GENERATE) --preset release
	ninja -C build -j $(JOBS) bin/lyr share

# The phone's own library, which the other trees take from here.
phone: packages
	@$(GENERATE) --preset release
	ninja -C build -j $(JOBS) phone packages

build: packages
	@$(GENERATE) --preset release
	ninja -C build -j $(JOBS)

test: build
	ctest --test-dir build --output-on-failure -j $(JOBS)

test-sanitize: phone
	@$(GENERATE) --preset sanitize
	ninja -C build-sanitize -j $(JOBS)
	ctest --test-dir build-sanitize --output-on-failure -j $(JOBS) -LE phone

# The phone's own code, out of its package, on an emulator of its processor: the end-to-end tests, and the comparison
# with the Linux library. It takes about half an hour.
ARM64 = $(CURDIR)/Phone/Arm64
test-phone: build
	@tools/install-packages $(ARM64)/packages.txt
	$(ARM64)/prepare build-arm64
	@cmake -S . -B build-arm64 -G Ninja --toolchain $(ARM64)/toolchain.cmake -DCMAKE_BUILD_TYPE=Release
	ninja -C build-arm64 -j $(JOBS) bin/lyr
	dpkg-deb -x build/packages/*_iphoneos-arm.deb build-arm64/package
	LYR_PROGRAM=$(ARM64)/lyr \
		LYR_EXTENSION=$(CURDIR)/build-arm64/package/Library/MobileSubstrate/DynamicLibraries/LYR_Pro.dylib \
		build/bin/EndToEndTests --gtest_brief=1
	LYR_PHONE_PROGRAM=$(ARM64)/lyr build/bin/MachOTests --gtest_brief=1 --gtest_filter='*SameBehaviour.*:*Package.*'

bench: phone
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
pictures: program
	tools/make-pictures

packages:
	@tools/install-packages

clean:
	rm -rf build build-sanitize build-bench build-arm64 packages
