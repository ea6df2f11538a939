#!/usr/bin/env bash
# Formats the whole tree; with --check it only says what is not formatted. Needs clang-format.
set -eu
cd "$(dirname "$0")/.."
mode=(-i)
[ "${1:-}" = --check ] && mode=(--dry-run --Werror)
git ls-files '*.cpp' '*.h' | xargs clang-format "${mode[@]}"
