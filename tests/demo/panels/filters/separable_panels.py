# SPDX-License-Identifier: MIT
import demo

HILL = (1, 6, 15, 20, 15, 6, 1)


class Separable(demo.PanelTest):
    family = "filters/separable"
    panels = ("smoothed", "moved")

    def setUp(self):
        self.use_noise(53, 31)

    def sample(self, x, y, c):
        column, row = min(max(x, 0), self.width - 1), min(max(y, 0), self.height - 1)
        return self.photo[row * self.width + column][c]

    def places(self):
        return ((x, y, c) for y in range(0, self.height, 3) for x in range(0, self.width, 4) for c in range(3))

    def test_smoothed(self):
        smoothed = self.results.pixels("separable-smoothed")
        for x, y, c in self.places():
            rows = [round(sum(tap * self.sample(x + i - 3, y + j - 3, c) for i, tap in enumerate(HILL)) / 64)
                    for j in range(7)]
            total = sum(tap * row for tap, row in zip(HILL, rows))
            self.assertEqual(smoothed[y * self.width + x][c], round(total / 64))

    def test_moved(self):
        moved = self.results.pixels("separable-moved")
        for x, y, c in self.places():
            total = sum(self.sample(x - i, y, c) for i in range(21))
            self.assertAlmostEqual(moved[y * self.width + x][c], total / 21, delta=0.5001)
