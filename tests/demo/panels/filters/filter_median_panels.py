# SPDX-License-Identifier: MIT
import demo


class FilterMedian(demo.PanelTest):
    family = "filters/filter_median"
    panels = ("three", "grains", "five", "nine")

    def setUp(self):
        self.use_noise(53, 31)
        self.grains = self.results.pixels("filter_median-grains")

    def test_grains(self):
        changed = [grain for own, grain in zip(self.photo, self.grains) if own != grain]
        self.assertLess(abs(len(changed) - len(self.photo) / 10), len(self.photo) / 30)
        self.assertEqual({tuple(grain) for grain in changed}, {(0, 0, 0), (255, 255, 255)})

    def expect_medians(self, panel, side):
        pixels = self.results.pixels(f"filter_median-{panel}")
        reach = range(-(side // 2), side // 2 + 1)
        for y in range(0, self.height, 5):
            for x in range(0, self.width, 7):
                rows = [min(max(y + j, 0), self.height - 1) * self.width for j in reach]
                columns = [min(max(x + i, 0), self.width - 1) for i in reach]
                for c in range(3):
                    window = sorted(self.grains[row + column][c] for row in rows for column in columns)
                    self.assertEqual(pixels[y * self.width + x][c], window[len(window) // 2])

    def test_medians(self):
        for panel, side in (("three", 3), ("five", 5), ("nine", 9)):
            self.expect_medians(panel, side)
