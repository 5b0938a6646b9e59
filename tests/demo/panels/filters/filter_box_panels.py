# SPDX-License-Identifier: MIT
import demo


class FilterBox(demo.PanelTest):
    family = "filters/filter_box"
    panels = ("growing", "unsharp")

    def setUp(self):
        self.use_noise(53, 31)

    def mean(self, x, y, c, side):
        reach, total = side // 2, 0
        for j in range(y - reach, y + reach + 1):
            row = min(max(j, 0), self.height - 1)
            total += sum(self.photo[row * self.width + min(max(i, 0), self.width - 1)][c]
                         for i in range(x - reach, x + reach + 1))
        return total / side ** 2

    def test_growing(self):
        growing = self.results.pixels("filter_box-growing")
        for stripe, side in enumerate((1, 5, 15, 45)):
            first, end = self.width * stripe // 4, self.width * (stripe + 1) // 4
            for x in range(first, end, 5):
                for y in range(0, self.height, 6):
                    self.assertAlmostEqual(growing[y * self.width + x][0], self.mean(x, y, 0, side), delta=0.6)

    def test_unsharp(self):
        unsharp = self.results.pixels("filter_box-unsharp")
        for y in range(0, self.height, 4):
            for x in range(0, self.width, 5):
                own = self.photo[y * self.width + x][1]
                sharper = own + (own - self.mean(x, y, 1, 9)) / 2
                self.assertAlmostEqual(unsharp[y * self.width + x][1], min(255, max(0, sharper)), delta=1.1)
