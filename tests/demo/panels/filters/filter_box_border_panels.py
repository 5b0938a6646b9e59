# SPDX-License-Identifier: MIT
import demo


class FilterBoxBorder(demo.PanelTest):
    family = "filters/filter_box_border"
    panels = ("edges", "value")

    def setUp(self):
        self.use_noise(53, 31)

    def expect_means(self, panel, outside):
        pixels = self.results.pixels(f"filter_box_border-{panel}")
        for y in range(0, self.height, 10):
            for x in range(0, self.width, 9):
                for c in range(3):
                    total = sum(outside(i, j, c) for j in range(y - 15, y + 16) for i in range(x - 15, x + 16))
                    self.assertAlmostEqual(pixels[y * self.width + x][c], total / 961, delta=0.5001)

    def test_edges(self):
        def nearest(x, y, c):
            return self.photo[min(max(y, 0), self.height - 1) * self.width + min(max(x, 0), self.width - 1)][c]
        self.expect_means("edges", nearest)

    def test_value(self):
        def sample(x, y, c):
            inside = 0 <= x < self.width and 0 <= y < self.height
            return self.photo[y * self.width + x][c] if inside else (255, 160, 0)[c]
        self.expect_means("value", sample)
