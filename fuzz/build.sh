#!/bin/bash -eu
# SPDX-License-Identifier: MIT
#
# Builds the fuzz targets as services that run them all day ask for it: the compilers and flags come in
# CC, CXX, CFLAGS, CXXFLAGS and LIB_FUZZING_ENGINE, and the programs go to OUT, each with its
# dictionary and an archive of seeds under its name. WORK is for what is in between.
source=$(cd "$(dirname "$0")/.." && pwd)
configure() {
  cmake -S "$source" -B "$WORK/$1" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DLUMIFACT_BUILD_TESTS=OFF -DLUMIFACT_BUILD_BENCH=OFF "${@:2}"
}

# The seeds are made by programs, which need no instruments.
env -u CFLAGS -u CXXFLAGS bash -euc "$(declare -f configure); source='$source'; configure seeds"
cmake --build "$WORK/seeds" --target make_corpus make_samples
"$WORK/seeds/samples/make_samples" "$WORK/samples"
"$WORK/seeds/fuzz/make_corpus" "$WORK/corpus" "$WORK/samples" 500
(cd "$WORK/corpus" && cmake -E tar cf "$WORK/seeds.zip" --format=zip .)

configure targets -DLUMIFACT_LIBFUZZER=ON \
  -DLUMIFACT_FUZZING_ENGINE="${LIB_FUZZING_ENGINE:--fsanitize=fuzzer}" \
  -DCMAKE_CXX_FLAGS="${CXXFLAGS:-} -w"
cmake --build "$WORK/targets" --target fuzz_targets
for target in "$WORK"/targets/fuzz/*_fuzz; do
  name=$(basename "$target")
  cp "$target" "$OUT/"
  cp "$WORK/seeds.zip" "$OUT/${name}_seed_corpus.zip"
  if [ -f "$target.dict" ]; then cp "$target.dict" "$OUT/"; fi
done
