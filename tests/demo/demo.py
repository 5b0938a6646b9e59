# SPDX-License-Identifier: MIT
"""What the tests of the photo demo share: runs of it on pictures made here, and what these wrote."""
import atexit
import functools
import pathlib
import random
import subprocess
import sys
import tempfile
import unittest

import png

PROGRAM = pathlib.Path(sys.argv.pop()).resolve()
# The panels that tests describe, by home and family. The tests of a family lie in panels/<home>/<family>_panels.py.
FAMILIES = {}


def noise(count):
    return random.Random(7).randbytes(count)


def pixels(samples, channels):
    return [samples[i:i + channels] for i in range(0, len(samples), channels)]


class Results(dict):
    """Channels and samples of the written pictures, by family and panel; each is read when it is asked for."""

    def __init__(self, folder):
        super().__init__()
        self.files = {path.stem: path for path in folder.glob("*/*.png")}

    def __missing__(self, name):
        self[name] = png.decode(self.files[name].read_bytes())[2:]
        return self[name]

    def pixels(self, name):
        channels, samples = self[name]
        return pixels(samples, channels)


class DemoTest(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory(prefix="lumi-demo-")
        self.addCleanup(place.cleanup)
        self.folder = pathlib.Path(place.name)
        self.out = self.folder / "new" / "out"

    def run_demo(self, *arguments):
        return subprocess.run([PROGRAM, *map(str, arguments)], text=True, capture_output=True, cwd=self.folder)

    def picture(self, width, height, channels=3):
        file = self.folder / "photo.png"
        file.write_bytes(png.encode(width, height, channels, noise(width * height * channels)))
        return file

    def results(self, *arguments):
        """Runs the demo, looks whether all is there, and returns what it wrote."""
        done = self.run_demo(*arguments)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        files = sorted(str(path.relative_to(self.out)) for path in self.out.rglob("*") if path.is_file())
        homes = {family.split("/")[0] for family in FAMILIES}
        panels = [f"{family}-{panel}.png" for family in FAMILIES for panel in FAMILIES[family]]
        self.assertEqual(files, sorted(panels + [f"{home}.png" for home in homes] + ["index.png"]))
        for name in ("lumiCopy_8u_C3P3R", "lumiSet_8u_C3MR", "lumiDup_8u_C1C3R", "ns/pixel"):
            self.assertIn(name, done.stdout)
        self.assertIn(str(self.out / "index.png"), done.stdout.splitlines()[-1])
        return Results(self.out)


@functools.lru_cache(maxsize=None)
def results_of_noise(width, height):
    """One run serves the tests of all families."""
    test = DemoTest()
    test.setUp()
    atexit.register(test.doCleanups)
    return test.results(test.picture(width, height), test.out)


class PanelTest(unittest.TestCase):
    """Base of the tests of a family, which names its home and itself, and its panels in their order."""

    family = ""
    panels = ()

    def __init_subclass__(cls):
        assert cls.family not in FAMILIES, cls.family
        FAMILIES[cls.family] = cls.panels

    def use_noise(self, width, height):
        self.width, self.height = width, height
        self.samples = noise(width * height * 3)
        self.photo = pixels(self.samples, 3)
        self.results = results_of_noise(width, height)

    def expect(self, name, channels, wanted):
        self.assertEqual(self.results[name], (channels, b"".join(wanted)), name)

    def flipped(self):
        """The photo's pixels, its last row first."""
        rows = [self.photo[y * self.width:(y + 1) * self.width] for y in range(self.height)]
        return [pixel for row in reversed(rows) for pixel in row]
