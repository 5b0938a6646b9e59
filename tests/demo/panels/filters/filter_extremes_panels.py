# SPDX-License-Identifier: MIT
import demo


class FilterExtremes(demo.PanelTest):
    family = "filters/filter_extremes"
    panels = ("max", "min")

    def setUp(self):
        self.use_noise(53, 31)

    def expect(self, panel, best):
        pixels = self.results.pixels(f"filter_extremes-{panel}")
        for y in range(0, self.height, 3):
            for x in range(0, self.width, 4):
                window = [self.photo[min(max(y + j, 0), self.height - 1) * self.width + min(max(x + i, 0), self.width - 1)]
                          for j in range(-4, 5) for i in range(-4, 5)]
                for c in range(3):
                    self.assertEqual(pixels[y * self.width + x][c], best(pixel[c] for pixel in window))

    def test_max(self):
        self.expect("max", max)

    def test_min(self):
        self.expect("min", min)
