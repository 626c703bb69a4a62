#!/usr/bin/python3
"""Times frames from memory in this widget and in pyqtgraph's ImageView, in turn, on one core.

Needs vkframes (VKINTENSITY_BUILD_BENCHMARKS) and the Debian packages python3-pyqtgraph,
python3-numpy and python3-pyqt5. Both programs show the same eight frames of 2048 x 2048 pixels with
16 bits in a window of 1280 x 800, which is painted at each frame without being shown. Times are
processor times, which other programs hardly lengthen. Three loops:

    vkframes   updateFrame() with one region of 512 x 512: statistics and histogram of the image and
               of the region, row and column profile, picture, panel
    setImage   ImageView.setImage() with fixed levels; it samples its histogram
    numbers    the same, and mean, deviation and range of the region, row and column, bincount
"""

import argparse
import math
import os
import statistics
import subprocess
import sys
import tempfile
import time

SIDE = 2048
FRAME_COUNT = 8
REGION = (slice(768, 1280), slice(768, 1280))
CROSS_HAIR = 1024


def measure_peer(path, rounds, with_numbers):
    """Prints what vkframes prints: median milliseconds, then the region of the last frame."""
    import numpy
    import pyqtgraph
    from pyqtgraph.Qt import QtCore, QtWidgets

    pyqtgraph.setConfigOptions(imageAxisOrder="row-major")
    application = pyqtgraph.mkQApp()
    frames = numpy.fromfile(path, numpy.uint16).reshape(FRAME_COUNT, SIDE, SIDE)
    window = QtWidgets.QMainWindow()
    view = pyqtgraph.ImageView()
    window.setCentralWidget(view)
    window.resize(1280, 800)
    window.show()
    levels = (0, 65535)
    view.setImage(frames[0], levels=levels)
    application.processEvents()

    class PaintCounter(QtCore.QObject):
        count = 0

        def eventFilter(self, watched, event):
            self.count += event.type() == QtCore.QEvent.Type.Paint
            return False

    painted = PaintCounter()
    view.ui.graphicsView.viewport().installEventFilter(painted)
    numbers = None
    times = []
    for round_index in range(-1, rounds):  # the first one only warms up
        for frame in frames:
            start = time.process_time()
            view.setImage(frame, autoRange=False, autoHistogramRange=False, levels=levels)
            if with_numbers:
                region = frame[REGION]
                numbers = (region.mean(), region.std(), region.min(), region.max())
                profiles = (frame[CROSS_HAIR].copy(), frame[:, CROSS_HAIR].copy())
                counts = numpy.bincount(frame.ravel())
            application.processEvents()
            if round_index >= 0:
                times.append(1000 * (time.process_time() - start))
    if painted.count < (rounds + 1) * FRAME_COUNT:
        sys.exit(f"{painted.count} frames were painted")
    if with_numbers:
        assert len(profiles[0]) == len(profiles[1]) == SIDE and counts.sum() == SIDE * SIDE
    print(statistics.median(times), *(numbers or ()))


def run(command):
    """The numbers that the command prints."""
    result = subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True)
    return [float(number) for number in result.stdout.split()]


def check_same_numbers(own, peer):
    for ours, theirs in zip(own[1:], peer[1:]):
        if not math.isclose(ours, theirs, rel_tol=1e-9):
            sys.exit(f"The numbers differ: {own[1:]} and {peer[1:]}")


def compare(vkframes, runs, rounds):
    loops = {"vkframes": [], "setImage": [], "numbers": []}
    with tempfile.TemporaryDirectory() as folder:
        frames = os.path.join(folder, "frames")
        subprocess.run([vkframes, "--write", frames], check=True)
        peer = [sys.executable, __file__, "--rounds", str(rounds), "--peer"]
        for _ in range(runs):
            own = run([vkframes, str(rounds)])
            bare = run(peer + ["setImage", frames])
            same_numbers = run(peer + ["numbers", frames])
            check_same_numbers(own, same_numbers)
            for loop, numbers in zip(loops, (own, bare, same_numbers)):
                loops[loop].append(numbers[0])
    print(f"{'':10}{'median ms a frame':>20}{'lowest':>10}{'highest':>10}{'vkframes to it':>17}")
    for loop, times in loops.items():
        ratio = statistics.median(own / other for own, other in zip(loops["vkframes"], times))
        print(f"{loop:10}{statistics.median(times):20.2f}{min(times):10.2f}{max(times):10.2f}"
              f"{ratio:17.2f}")


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", help="vkframes of a release build")
    parser.add_argument("--runs", type=int, default=5, help="runs of each loop, in turn (5)")
    parser.add_argument("--rounds", type=int, default=10,
                        help="rounds over the eight frames in each run (10)")
    parser.add_argument("--core", type=int, default=0, help="core that everything runs on (0)")
    parser.add_argument("--peer", choices=("setImage", "numbers"), help=argparse.SUPPRESS)
    options = parser.parse_args()
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    if options.peer:
        measure_peer(options.program, options.rounds, options.peer == "numbers")
        return
    os.sched_setaffinity(0, {options.core})
    compare(options.program, options.runs, options.rounds)


if __name__ == "__main__":
    main()
