#!/usr/bin/python3
"""Times vkmeasure against numpy, two jobs against one, and tells how much memory it takes.

Needs vkmeasure of a release build and the Debian package python3-numpy. Three comparisons:

    numbers   statistics, histogram and both profiles of a raw file of 8192 x 8192 pixels with 16
              bits: vkmeasure on one core, and numpy's fromfile, min, max, mean, std and bincount in
              a process of its own, in turn. Processor times, without the start of Python and
              numpy, and with that of vkmeasure.
    jobs      100 raw files of 2048 x 2048 pixels: wall times with two jobs and with one
    memory    the largest resident size beyond 1.2 times the pixels of the largest file a job, as
              a part of 64 MiB

The exit status is 1 when a ratio is beyond its limit.
"""

import argparse
import json
import math
import os
import statistics
import struct
import subprocess
import sys
import tempfile
import time

HEADER_BYTES = 1024
LARGE_SIDE = 8192
SMALL_SIDE = 2048
FILE_COUNT = 100
PROFILE = 1000  # row and column
RATIO_LIMIT = 0.25
JOBS_LIMIT = 0.6
MEMORY_LIMIT = 64 << 20


def header(side, sample_bytes):
    """The header of docs/raw-format.md for a square frame."""
    fields = bytearray(HEADER_BYTES)
    fields[0:6] = b"VORLAK"
    struct.pack_into("<HH", fields, 12, side, side)
    struct.pack_into("<BB", fields, 22, 1, sample_bytes)
    struct.pack_into("<I", fields, 32, side * side * sample_bytes)
    return fields


def write_frame(path, side, sample_type, largest):
    import numpy

    generator = numpy.random.default_rng(1)
    samples = generator.integers(0, largest, side * side, sample_type, endpoint=True)
    with open(path, "wb") as file:
        file.write(header(side, samples.itemsize))
        samples.tofile(file)


def write_frames(large, small, wide):
    write_frame(large, LARGE_SIDE, "uint16", 65535)
    write_frame(small, SMALL_SIDE, "uint16", 65535)
    write_frame(wide, SMALL_SIDE // 4, "uint32", (1 << 26) - 1)


def measure_peer(path):
    """Prints processor seconds and the numbers."""
    import numpy

    start = time.process_time()
    samples = numpy.fromfile(path, numpy.uint16, offset=HEADER_BYTES)
    frame = samples.reshape(LARGE_SIDE, LARGE_SIDE)
    numbers = [int(frame.min()), int(frame.max()), float(frame.mean()), float(frame.std())]
    counts = numpy.bincount(samples)
    profiles = frame[PROFILE].copy(), frame[:, PROFILE].copy()
    numbers += [int(counts[1000]), int(profiles[0][7]), int(profiles[1][7])]
    print(json.dumps([time.process_time() - start, numbers]))


def run(command):
    """Standard output, processor seconds, wall seconds and the largest resident bytes."""
    start = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.PIPE)
    output = process.stdout.read()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{command[0]} ended with {process.returncode}")
    wall = time.perf_counter() - start
    return output, usage.ru_utime + usage.ru_stime, wall, usage.ru_maxrss * 1024


def own_numbers(line):
    found = json.loads(line)
    image, histogram = found["image"], found["histogram"]
    return [image["minimum"], image["maximum"], image["mean"], image["deviation"],
            histogram["counts"][1000 - histogram["first"]], found["rows"][0]["values"][7],
            found["columns"][0]["values"][7]]


def report(name, value, limit, text):
    print(f"{name:10}{value:8.2f}   at most {limit:.2f}   {text}", flush=True)
    return value <= limit


def compare_numbers(program, frame, runs):
    own_times, peer_times = [], []
    command = [program, "--histogram", "--row", str(PROFILE), "--column", str(PROFILE), frame]
    for _ in range(runs):
        output, seconds, _, _ = run(command)
        own_times.append(seconds)
        peer_seconds, numbers = json.loads(run([sys.executable, __file__, "--peer", frame])[0])
        peer_times.append(peer_seconds)
        for ours, theirs in zip(own_numbers(output), numbers):
            if not math.isclose(ours, theirs, rel_tol=1e-9):
                sys.exit(f"The numbers differ: {own_numbers(output)} and {numbers}")
    own, peer = statistics.median(own_times), statistics.median(peer_times)
    return report("numbers", statistics.median(o / p for o, p in zip(own_times, peer_times)),
                  RATIO_LIMIT, f"{1000 * own:.0f} ms to {1000 * peer:.0f} ms of processor time")


def compare_jobs(program, frame, runs):
    one, two = [], []
    files = [frame] * FILE_COUNT
    for _ in range(runs):
        one.append(run([program, "--jobs", "1"] + files)[2])
        two.append(run([program, "--jobs", "2"] + files)[2])
    return report("jobs", statistics.median(b / a for a, b in zip(one, two)), JOBS_LIMIT,
                  f"{1000 * statistics.median(two):.0f} ms to {1000 * statistics.median(one):.0f} ms")


def compare_memory(program, frame, name, options, jobs=1):
    pixel_bytes = os.path.getsize(frame) - HEADER_BYTES
    peak = run([program, "--jobs", str(jobs)] + options + [frame] * (2 * jobs))[3]
    beyond = peak - 1.2 * pixel_bytes * jobs
    return report("memory", beyond / MEMORY_LIMIT, 1.0,
                  f"{peak / 2**20:.0f} MiB for {jobs} x {pixel_bytes / 2**20:.0f} MiB, {name}")


def compare(program, runs):
    with tempfile.TemporaryDirectory() as folder:
        large, small, wide = (os.path.join(folder, name) for name in ("l.raw", "s.raw", "w.raw"))
        # In another process: a child's resident size counts what its parent had when it began.
        subprocess.run([sys.executable, __file__, "--write", large, small, wide], check=True)
        cores = os.sched_getaffinity(0)
        os.sched_setaffinity(0, {min(cores)})
        passed = [compare_numbers(program, large, runs)]
        os.sched_setaffinity(0, cores)
        lines = ["--row", "5", "--column", "5", "--peaks", "10"]
        passed += [
            compare_jobs(program, small, runs),
            compare_memory(program, large, "16 bits", ["--histogram"] + lines),
            compare_memory(program, small, "two jobs", ["--histogram"] + lines, 2),
            compare_memory(program, wide, "2^26 values", ["--histogram"] + lines),
        ]
    sys.exit(0 if all(passed) else 1)


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", nargs="+", metavar="program",
                        help="vkmeasure of a release build")
    parser.add_argument("--runs", type=int, default=5, help="runs of each comparison (5)")
    parser.add_argument("--write", action="store_true", help=argparse.SUPPRESS)
    parser.add_argument("--peer", action="store_true", help=argparse.SUPPRESS)
    options = parser.parse_args()
    if options.peer:
        measure_peer(options.program[0])
    elif options.write:
        write_frames(*options.program)
    else:
        compare(options.program[0], options.runs)


if __name__ == "__main__":
    main()
