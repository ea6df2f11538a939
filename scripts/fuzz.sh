#!/usr/bin/env bash
# Fuzzes one target for some seconds: scripts/fuzz.sh events|records|settings SECONDS
# New inputs are kept in build-fuzz/corpus; a crash is written to build-fuzz. Needs clang and libclang-rt-14-dev.
set -eu
cd "$(dirname "$0")/.."
target=$1
seconds=$2
cmake -G Ninja -B build-fuzz -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTARNWICK_FUZZ=ON \
    -DTARNWICK_SANITIZE=address,undefined -DTARNWICK_TESTS=OFF -DTARNWICK_DESKTOP=OFF >/dev/null
cmake --build build-fuzz --target "fuzz_$target"
mkdir -p "build-fuzz/corpus/$target"
build-fuzz/fuzz_"$target" -max_total_time="$seconds" -max_len=2000 -artifact_prefix=build-fuzz/ \
    "build-fuzz/corpus/$target" "fuzz/corpus/$target"
