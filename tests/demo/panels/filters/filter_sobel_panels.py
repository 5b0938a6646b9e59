# SPDX-License-Identifier: MIT
import demo


class FilterSobel(demo.PanelTest):
    family = "filters/filter_sobel"
    panels = ("edges", "wide-edges")

    def setUp(self):
        self.use_noise(53, 31)

    def magnitudes(self, smooth, fall, shift):
        reach = len(smooth) // 2

        def sample(x, y):
            return self.photo[min(max(y, 0), self.height - 1) * self.width + min(max(x, 0), self.width - 1)][1]

        def at(x, y):
            window = [[sample(x + i, y + j) for i in range(-reach, reach + 1)] for j in range(-reach, reach + 1)]
            gx = sum(w * sum(f * s for f, s in zip(fall, row)) for w, row in zip(smooth, window))
            gy = sum(-f * sum(w * s for w, s in zip(smooth, row)) for f, row in zip(fall, window))
            return min(255, (abs(gx) + abs(gy)) >> shift)
        return bytes(at(x, y) for y in range(self.height) for x in range(self.width))

    def test_edges(self):
        self.expect("filter_sobel-edges", 1, [self.magnitudes((1, 2, 1), (1, 0, -1), 1)])

    def test_wide_edges(self):
        self.expect("filter_sobel-wide-edges", 1, [self.magnitudes((1, 4, 6, 4, 1), (1, 2, 0, -2, -1), 4)])
