#!/usr/bin/env bash
# Format, clang-tidy and cppcheck over the whole tree; quiet when there is nothing to say.
# Needs clang-format, clang-tidy and cppcheck.
set -u
cd "$(dirname "$0")/.." || exit 1
status=0
scripts/format.sh --check || status=1
# Without precompiled headers: those of one compiler are nothing to another.
cmake --preset release -B build-lint -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null || exit 1
git ls-files '*.cpp' ':!tests/faults' ':!bench' | xargs -P "$(nproc)" -n 4 \
    clang-tidy --quiet -p build-lint 2>/dev/null | grep -E '(warning|error):' && status=1
git ls-files 'platform/*.cpp' 'settings/*.cpp' 'windows/*.cpp' 'state/*.cpp' 'board/*.cpp' 'game/*.cpp' 'ui/*.cpp' \
    'view/*.cpp' 'notation/*.cpp' | xargs cppcheck --std=c++20 --enable=warning,performance,portability --inline-suppr --quiet \
    --error-exitcode=1 -I . || status=1
exit $status
