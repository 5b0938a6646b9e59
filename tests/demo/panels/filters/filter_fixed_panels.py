# SPDX-License-Identifier: MIT
import demo


class FilterFixed(demo.PanelTest):
    family = "filters/filter_fixed"
    panels = ("sobel", "prewitt", "roberts", "laplace", "gauss", "lowpass", "sharpened")

    def setUp(self):
        self.use_noise(53, 31)

    def sample(self, x, y, c):
        column, row = min(max(x, 0), self.width - 1), min(max(y, 0), self.height - 1)
        return self.photo[row * self.width + column][c]

    def expect(self, panel, value):
        pixels = self.results.pixels("filter_fixed-" + panel)
        for y in range(0, self.height, 2):
            for x in range(0, self.width, 3):
                for c in range(3):
                    at = lambda i, j: self.sample(x + i, y + j, c)
                    self.assertEqual(pixels[y * self.width + x][c], min(255, max(0, value(at))), (panel, x, y, c))

    def test_gradients(self):
        self.expect("sobel", lambda at: sum(w * (at(-1, j) - at(1, j)) for j, w in ((-1, 1), (0, 2), (1, 1))))
        self.expect("prewitt", lambda at: sum(at(i, 1) - at(i, -1) for i in (-1, 0, 1)))
        self.expect("roberts", lambda at: at(0, 0) - at(-1, -1))

    def test_means(self):
        window = [(i, j) for i in range(-2, 3) for j in range(-2, 3)]
        self.expect("lowpass", lambda at: (sum(at(i, j) for i, j in window) + 13) * 10485 >> 18)
        self.expect("sharpened", lambda at: round((17 * at(0, 0) - sum(at(i, j) for i in (-1, 0, 1)
                                                                       for j in (-1, 0, 1))) / 8))
        rows = ((2, 7, 12, 7, 2), (7, 31, 52, 31, 7), (12, 52, 127, 52, 12), (7, 31, 52, 31, 7), (2, 7, 12, 7, 2))
        self.expect("gauss", lambda at: round(sum(rows[j + 2][i + 2] * at(i, j) for i, j in window) / 571))
