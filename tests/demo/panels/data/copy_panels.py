# SPDX-License-Identifier: MIT
import demo


class Copy(demo.PanelTest):
    family = "data/copy"
    panels = ("original", "green-into-red", "disc", "mosaic", "upside-down", "inset")

    def setUp(self):
        self.use_noise(53, 31)

    def test_whole(self):
        self.expect("copy-original", 3, self.photo)
        self.expect("copy-upside-down", 3, self.flipped())

    def test_one_channel(self):
        self.expect("copy-green-into-red", 3, (bytes((p[1], p[1], p[2])) for p in self.photo))

    def test_tiles(self):
        self.assertEqual(sorted(self.results.pixels("copy-mosaic")), sorted(self.photo))
        self.assertNotEqual(self.results["copy-mosaic"], self.results["copy-original"])

    def test_under_a_mask(self):
        disc = self.results.pixels("copy-disc")
        for p, alpha, mixed in zip(self.photo, self.results.pixels("copy_channels-alpha"), disc):
            self.assertEqual(mixed, p if alpha[3] else p[1:2] * 3)

    def test_inset(self):
        inset = self.results.pixels("copy-inset")
        across, down, margin = 18, 11, 1  # a third of the picture, and a sixteenth of its height
        left, top = self.width - across - margin, self.height - down - margin
        for y in range(self.height):
            for x in range(self.width):
                small = left <= x < left + across and top <= y < top + down
                wanted = self.photo[(y - top) * 3 * self.width + (x - left) * 3 if small else y * self.width + x]
                self.assertEqual(inset[y * self.width + x], wanted)
