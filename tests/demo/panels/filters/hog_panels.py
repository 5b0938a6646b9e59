# SPDX-License-Identifier: MIT
import demo


class Hog(demo.PanelTest):
    family = "filters/hog"
    panels = ("stars",)

    def setUp(self):
        self.use_noise(53, 31)
        self.stars = self.results.pixels("hog-stars")

    def half(self, x, y):
        return tuple(sample // 2 for sample in self.photo[y * self.width + x])

    def test_cells_have_stars(self):
        for top in range(0, 16, 8):
            for left in range(0, 48, 8):
                cell = [(x, y) for x in range(left, left + 8) for y in range(top, top + 8)]
                self.assertTrue(any(tuple(self.stars[y * self.width + x]) != self.half(x, y) for x, y in cell))

    def test_what_no_block_covers_is_dark(self):
        for y in range(self.height):
            for x in range(self.width):
                pixel = tuple(self.stars[y * self.width + x])
                if x >= 48 or y >= 16:
                    self.assertEqual(pixel, self.half(x, y))
                self.assertTrue(all(a >= b for a, b in zip(pixel, self.half(x, y))))
