# SPDX-License-Identifier: MIT
"""Runs the photo demo on pictures made here, compares what it wrote, and gives it bad input."""
import base64
import pathlib
import random
import subprocess
import sys
import tempfile
import unittest

import png

PROGRAM = pathlib.Path(sys.argv.pop()).resolve()
NAMES = ["original", "red", "green", "blue", "swapped", "green-into-red", "grey", "blue-filled", "ring", "disc",
         "opaque", "alpha", "alpha-kept", "mosaic", "upside-down", "inset", "brighter", "contrast", "exposure",
         "difference", "through-16-bits", "stretched", "bit-mask", "bits-applied", "reduced-nearest", "reduced-linear",
         "enlarged-nearest", "enlarged-linear", "enlarged-tiles", "blurred", "sharpened", "embossed", "corner-value",
         "corner-edges", "framed"]

# 8 x 8 pixels of about (200, 100, 50).
JPEG = base64.b64decode("""
/9j/4AAQSkZJRgABAQAAAQABAAD/2wCEAAMCAgMCAgMDAwMEAwMEBQgFBQQEBQoHBwYIDAoMDAsKCwsNDhIQDQ4RDgsLEBYQERMUFRUVDA8X
GBYUGBIUFRQBAwQEBQQFCQUFCRQNCw0UFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFBQUFP/AABEIAAgA
CAMBIgACEQEDEQH/xAGiAAABBQEBAQEBAQAAAAAAAAAAAQIDBAUGBwgJCgsQAAIBAwMCBAMFBQQEAAABfQECAwAEEQUSITFBBhNRYQcicRQy
gZGhCCNCscEVUtHwJDNicoIJChYXGBkaJSYnKCkqNDU2Nzg5OkNERUZHSElKU1RVVldYWVpjZGVmZ2hpanN0dXZ3eHl6g4SFhoeIiYqSk5SV
lpeYmZqio6Slpqeoqaqys7S1tre4ubrCw8TFxsfIycrS09TV1tfY2drh4uPk5ebn6Onq8fLz9PX29/j5+gEAAwEBAQEBAQEBAQAAAAAAAAEC
AwQFBgcICQoLEQACAQIEBAMEBwUEBAABAncAAQIDEQQFITEGEkFRB2FxEyIygQgUQpGhscEJIzNS8BVictEKFiQ04SXxFxgZGiYnKCkqNTY3
ODk6Q0RFRkdISUpTVFVWV1hZWmNkZWZnaGlqc3R1dnd4eXqCg4SFhoeIiYqSk5SVlpeYmZqio6Slpqeoqaqys7S1tre4ubrCw8TFxsfIycrS
09TV1tfY2dri4+Tl5ufo6ery8/T19vf4+fr/2gAMAwEAAhEDEQA/AKtFFFfh5/SB/9k=
""")


def noise(count):
    return random.Random(7).randbytes(count)


def pixels(samples, channels):
    return [samples[i:i + channels] for i in range(0, len(samples), channels)]


class Results(dict):
    """Channels and samples of the written pictures, by name; each is read when it is asked for."""

    def __init__(self, folder, files):
        super().__init__()
        self.files = {name: folder / file for name, file in zip(NAMES, files)}

    def __missing__(self, name):
        self[name] = png.decode(self.files[name].read_bytes())[2:]
        return self[name]

    def pixels(self, name):
        channels, samples = self[name]
        return pixels(samples, channels)


class PhotoDemo(unittest.TestCase):
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
        """Runs the demo and returns what it wrote."""
        done = self.run_demo(*arguments)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        files = sorted(file.name for file in self.out.iterdir())
        numbered = [f"{number:02}-{name}.png" for number, name in enumerate(NAMES, 1)]
        self.assertEqual(files, numbered + ["sheet.png"])
        for name in ("lumiCopy_8u_C3P3R", "lumiSet_8u_C3MR", "lumiDup_8u_C1C3R", "ns/pixel"):
            self.assertIn(name, done.stdout)
        return Results(self.out, numbered)

    def test_scene(self):
        results = self.results("-", self.out)
        self.assertGreater(len(set(results.pixels("original"))), 200)
        heading = 80
        width, height, channels, samples = png.decode((self.out / "sheet.png").read_bytes(), heading)
        self.assertGreater(width, 1000)
        self.assertGreater(height, 1000)
        self.assertEqual(channels, 3)
        rows = [pixels(samples[y * width * 3:(y + 1) * width * 3], 3) for y in range(heading)]
        background = rows[0][0]
        self.assertEqual(set(rows[0]), {background})
        self.assertEqual({row[x] for row in rows for x in (0, 20, -20, -1)}, {background})
        self.assertGreater(sum(p != background for row in rows for p in row), 1000)  # letters

    def test_default_folder(self):
        self.assertEqual(self.run_demo().returncode, 0)
        self.assertTrue((self.folder / "build" / "demo" / "sheet.png").is_file())

    def test_colours(self):
        width, height = 53, 31
        photo = pixels(noise(width * height * 3), 3)
        results = self.results(self.picture(width, height), self.out)

        def expect(name, channels, wanted):
            self.assertEqual(results[name], (channels, b"".join(wanted)), name)

        expect("original", 3, photo)
        for channel, name in enumerate(("red", "green", "blue")):
            expect(name, 1, (p[channel:channel + 1] for p in photo))
        expect("swapped", 3, (p[::-1] for p in photo))
        expect("green-into-red", 3, (bytes((p[1], p[1], p[2])) for p in photo))
        expect("grey", 3, (p[1:2] * 3 for p in photo))
        expect("blue-filled", 3, (bytes((p[1], p[1], 96)) for p in photo))
        expect("opaque", 4, (p + b"\xff" for p in photo))
        rows = [photo[y * width:(y + 1) * width] for y in range(height)]
        expect("upside-down", 3, (p for row in rows[::-1] for p in row))
        self.assertEqual(sorted(results.pixels("mosaic")), sorted(photo))
        self.assertNotEqual(results["mosaic"], results["original"])

    def test_arithmetic(self):
        width, height = 53, 31
        samples = noise(width * height * 3)
        results = self.results(self.picture(width, height), self.out)

        def expect(name, wanted):
            self.assertEqual(results[name], (3, bytes(wanted)), name)

        row = width * 3
        flipped = b"".join(samples[y * row:(y + 1) * row] for y in reversed(range(height)))
        expect("brighter", (min(255, s + 50) for s in samples))
        expect("contrast", (min(255, 2 * max(0, s - 64)) for s in samples))
        expect("exposure", (round((a + b) / 2) for a, b in zip(samples, flipped)))  # ties to even
        expect("through-16-bits", samples)
        for got, s in zip(results["stretched"][1], samples):
            self.assertAlmostEqual(got, min(255, max(0, (s / 255 - 0.25) * 510)), delta=0.501)
        moved = [0] * len(samples)
        for y in range(height - 3):
            for i in range((width - 3) * 3):
                here = samples[y * row + i]
                moved[y * row + i] = min(255, 2 * abs(samples[(y + 3) * row + i + 9] - here))
        expect("difference", moved)

    def test_resizing(self):
        width, height = 80, 48
        photo = pixels(noise(width * height * 3), 3)
        results = self.results(self.picture(width, height), self.out)
        reduced = []
        across, down = width * 2 // 5, height * 2 // 5
        for y in range(down):
            for x in range(across):
                row, column = int((y + 0.5) * (height / down) - 1e-10), int((x + 0.5) * (width / across) - 1e-10)
                reduced.append(photo[row * width + column])
        self.assertEqual(results["reduced-nearest"], (3, b"".join(reduced)))
        self.assertEqual(len(results["reduced-linear"][1]), len(results["reduced-nearest"][1]))
        part = [photo[(18 - 3 + y) * width + 50 - 5 + x] for y in range(6) for x in range(10)]
        enlarged = [part[y // 8 * 10 + x // 8] for y in range(48) for x in range(80)]
        self.assertEqual(results["enlarged-nearest"], (3, b"".join(enlarged)))
        self.assertEqual(results["enlarged-tiles"], results["enlarged-linear"])
        self.assertNotEqual(results["enlarged-linear"], results["enlarged-nearest"])

    def test_filters(self):
        width, height = 53, 31
        photo = pixels(noise(width * height * 3), 3)
        results = self.results(self.picture(width, height), self.out)

        def sample(x, y, c):
            return photo[min(max(y, 0), height - 1) * width + min(max(x, 0), width - 1)][c]

        blurred, sharpened = results.pixels("blurred"), results.pixels("sharpened")
        for y in range(0, height, 3):
            for x in range(0, width, 4):
                for c in range(3):
                    total = sum(sample(x + i, y + j, c) for i in range(-4, 5) for j in range(-4, 5))
                    self.assertAlmostEqual(blurred[y * width + x][c], total / 81, delta=0.5001)
                    sharp = 5 * sample(x, y, c) - sum(sample(x + i, y + j, c)
                                                      for i, j in ((0, 1), (0, -1), (1, 0), (-1, 0)))
                    self.assertEqual(sharpened[y * width + x][c], min(255, max(0, sharp)))
        embossed = results.pixels("embossed")
        self.assertEqual(embossed[:width], photo[:width])
        self.assertEqual(embossed[-width:], photo[-width:])
        self.assertNotEqual(embossed, photo)
        self.assertNotEqual(results["corner-value"], results["corner-edges"])

    def test_bits(self):
        width, height = 53, 31
        photo = pixels(noise(width * height * 3), 3)
        results = self.results(self.picture(width, height), self.out)
        bright = [p[1] > 127 for p in photo]
        self.assertEqual(results["bit-mask"], (1, bytes(255 * b for b in bright)))
        other = [p for y in reversed(range(height)) for p in photo[y * width:(y + 1) * width]]
        mixed = b"".join(a if b else c for a, b, c in zip(photo, bright, other))
        self.assertEqual(results["bits-applied"], (3, mixed))

    def test_masks(self):
        width, height = 53, 31
        photo = pixels(noise(width * height * 3), 3)
        written = self.results(self.picture(width, height), self.out)
        results = {name: written.pixels(name) for name in ("ring", "disc", "alpha", "alpha-kept")}
        chosen = [p[3] for p in results["alpha"]]
        self.assertEqual(set(chosen), {0, 255})
        self.assertEqual(chosen[height // 2 * width + width // 2], 255)
        self.assertEqual([p[:3] for p in results["alpha"]], photo)
        self.assertEqual([p[3] for p in results["alpha-kept"]], chosen)
        upper = height // 2 * width
        self.assertEqual(results["alpha-kept"][:upper], results["alpha"][:upper])
        self.assertEqual({p[:3] for p in results["alpha-kept"][upper:]}, {bytes((0, 150, 160))})
        for p, alpha, mixed, ring in zip(photo, chosen, results["disc"], results["ring"]):
            self.assertEqual(mixed, p if alpha else p[1:2] * 3)
            self.assertIn(ring, (p, bytes((255, 140, 0))) if alpha else (p,))
        self.assertIn(bytes((255, 140, 0)), results["ring"])

    def test_grey_picture(self):
        results = self.results(self.picture(20, 10, channels=1), self.out)
        self.assertEqual(results["original"], results["grey"])
        self.assertEqual(results["red"], (1, noise(200)))

    def test_picture_with_alpha(self):
        results = self.results(self.picture(20, 10, channels=4), self.out)
        self.assertEqual(results["original"][1], b"".join(p[:3] for p in pixels(noise(800), 4)))

    def test_jpeg(self):
        file = self.folder / "photo.jpg"
        file.write_bytes(JPEG)
        photo = self.results(file, self.out).pixels("original")
        self.assertEqual(len(photo), 64)
        for p in photo:
            for value, wanted in zip(p, (200, 100, 50)):
                self.assertLessEqual(abs(value - wanted), 4)

    def test_odd_sizes(self):
        for width, height in ((1, 1), (2, 1), (1, 300), (900, 1), (3, 2), (17, 16)):
            with self.subTest(width=width, height=height):
                results = self.results(self.picture(width, height), self.out)
                self.assertEqual(results["original"], (3, noise(width * height * 3)))

    def expect_error(self, words, *arguments):
        done = self.run_demo(*arguments)
        self.assertEqual(done.returncode, 1, done.stderr)
        self.assertRegex(done.stderr, r"\Aphoto_demo: [^\n]+\n\Z")
        self.assertIn(words, done.stderr)

    def test_bad_pictures(self):
        good = self.picture(40, 30).read_bytes()
        huge = png.SIGNATURE + png.header(20000, 10000, 3) + good[33:]
        wide = png.SIGNATURE + png.header(100000, 1, 3) + good[33:]
        for name, content, words in (
                ("empty.png", b"", "not a PNG or JPEG"),
                ("text.png", b"no picture\n" * 20, "not a PNG or JPEG"),
                ("picture.bmp", b"BM" + bytes(60), "not a PNG or JPEG"),
                ("cut.png", good[:len(good) // 2], "damaged"),
                ("cut.jpg", JPEG[:300], "damaged"),
                ("huge.png", huge, "too large"), ("wide.png", wide, "too large")):
            with self.subTest(name):
                (self.folder / name).write_bytes(content)
                self.expect_error(words, name, self.out)
                self.assertFalse(self.out.exists(), "nothing is created for a bad picture")

    def test_missing_pictures(self):
        self.expect_error("No such file", "missing.png", self.out)
        self.expect_error("it is a folder", self.folder, self.out)

    def test_bad_folders(self):
        photo = self.picture(8, 8)
        self.expect_error("cannot create folder", photo, photo)
        self.expect_error("cannot create folder", photo, photo / "below-a-file")
        (self.out / "01-original.png").mkdir(parents=True)
        self.expect_error("cannot create", photo, self.out)

    def test_no_room(self):
        if not pathlib.Path("/dev/full").exists():
            self.skipTest("no device that is always full")
        self.out.mkdir(parents=True)
        (self.out / "sheet.png").symlink_to("/dev/full")
        self.expect_error("No space left", self.picture(8, 8), self.out)

    def test_too_many_arguments(self):
        self.expect_error("usage", "-", self.out, "more")


if __name__ == "__main__":
    unittest.main()
