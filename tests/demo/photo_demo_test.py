# SPDX-License-Identifier: MIT
"""Runs the photo demo on pictures made here, compares what it wrote, and gives it bad input."""
import base64
import importlib.util
import pathlib
import sys
import unittest

import demo
import png
from demo import noise, pixels

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


class PhotoDemo(demo.DemoTest):
    def check_sheet(self, name, cards_in_rows):
        """A heading on plain background, and room for the cards below."""
        heading, columns = 80, 4
        width, height, channels, samples = png.decode((self.out / name).read_bytes(), heading)
        self.assertGreater(width, 1000)
        self.assertGreater(height, heading + sum(-(-cards // columns) for cards in cards_in_rows) * 250)
        self.assertEqual(channels, 3)
        rows = [pixels(samples[y * width * 3:(y + 1) * width * 3], 3) for y in range(heading)]
        background = rows[0][0]
        self.assertEqual(set(rows[0]), {background})
        self.assertEqual({row[x] for row in rows for x in (0, 20, -20, -1)}, {background})
        self.assertGreater(sum(p != background for row in rows for p in row), 1000)  # letters

    def test_scene(self):
        results = self.results("-", self.out)
        self.assertGreater(len(set(results.pixels("copy-original"))), 200)
        homes = {}
        for family, panels in demo.FAMILIES.items():
            home = family.split("/")[0]
            homes[home] = homes.get(home, 0) + len(panels)
        for home, count in homes.items():
            with self.subTest(home):
                self.check_sheet(f"{home}.png", [count])
        self.check_sheet("index.png", [min(count, 4) for count in homes.values()])

    def test_default_folder(self):
        self.assertEqual(self.run_demo().returncode, 0)
        self.assertTrue((self.folder / "build" / "demo" / "index.png").is_file())

    def test_grey_picture(self):
        results = self.results(self.picture(20, 10, channels=1), self.out)
        self.assertEqual(results["copy-original"], results["copy_channels-grey"])
        self.assertEqual(results["copy_channels-red"], (1, noise(200)))

    def test_picture_with_alpha(self):
        results = self.results(self.picture(20, 10, channels=4), self.out)
        self.assertEqual(results["copy-original"][1], b"".join(p[:3] for p in pixels(noise(800), 4)))

    def test_jpeg(self):
        file = self.folder / "photo.jpg"
        file.write_bytes(JPEG)
        photo = self.results(file, self.out).pixels("copy-original")
        self.assertEqual(len(photo), 64)
        for p in photo:
            for value, wanted in zip(p, (200, 100, 50)):
                self.assertLessEqual(abs(value - wanted), 4)

    def test_odd_sizes(self):
        for width, height in ((1, 1), (2, 1), (1, 300), (900, 1), (3, 2), (17, 16)):
            with self.subTest(width=width, height=height):
                results = self.results(self.picture(width, height), self.out)
                self.assertEqual(results["copy-original"], (3, noise(width * height * 3)))

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
        (self.out / "data" / "copy-original.png").mkdir(parents=True)
        self.expect_error("cannot create", photo, self.out)

    def test_no_room(self):
        if not pathlib.Path("/dev/full").exists():
            self.skipTest("no device that is always full")
        self.out.mkdir(parents=True)
        (self.out / "index.png").symlink_to("/dev/full")
        self.expect_error("No space left", self.picture(8, 8), self.out)

    def test_too_many_arguments(self):
        self.expect_error("usage", "-", self.out, "more")


def load_tests(loader, tests, _):
    """The tests of this file, and those of all families."""
    for path in sorted(pathlib.Path(__file__).parent.glob("panels/*/*_panels.py")):
        module = importlib.util.module_from_spec(importlib.util.spec_from_file_location(path.stem, path))
        sys.modules[path.stem] = module
        module.__spec__.loader.exec_module(module)
        tests.addTests(loader.loadTestsFromModule(module))
    return tests


if __name__ == "__main__":
    unittest.main()
