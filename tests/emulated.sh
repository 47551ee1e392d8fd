#!/usr/bin/env bash
# Runs a program on QEMU's emulated processor, whose 12-bit estimates differ from any hardware's. Without QEMU it
# says so and returns 77, which CTest counts as skipped.
command -v qemu-x86_64 >/dev/null || {
    echo "qemu-x86_64 is not installed (Debian: qemu-user): skipped $(basename -- "$1")"
    exit 77
}
exec qemu-x86_64 -cpu max "$@"
