# SPDX-License-Identifier: MIT
import demo


class SumWindow(demo.PanelTest):
    family = "filters/sum_window"
    panels = ("row", "column")

    def setUp(self):
        self.use_noise(53, 31)

    def expect_means(self, panel, along_x, along_y):
        pixels = self.results.pixels(f"sum_window-{panel}")
        for y in range(0, self.height, 4):
            for x in range(0, self.width, 5):
                total = 0
                for k in range(-15, 16):
                    column = min(max(x + k * along_x, 0), self.width - 1)
                    row = min(max(y + k * along_y, 0), self.height - 1)
                    total += self.photo[row * self.width + column][2]
                self.assertAlmostEqual(pixels[y * self.width + x][2], total / 31, delta=0.5001)

    def test_row(self):
        self.expect_means("row", 1, 0)

    def test_column(self):
        self.expect_means("column", 0, 1)
