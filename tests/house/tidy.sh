#!/bin/sh
# Runs clang-tidy over src/: tidy.sh BUILD, the folder that has the compile commands.
cd "$(dirname "$0")/../.." || exit 1
if ! command -v run-clang-tidy >/dev/null; then
  echo "tidy: run-clang-tidy is missing; Debian has it in the package clang-tidy" >&2
  exit 1
fi
exec run-clang-tidy -quiet -p "$1" "^$PWD/src/"
