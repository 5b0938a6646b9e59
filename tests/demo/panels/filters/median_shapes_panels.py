# SPDX-License-Identifier: MIT
import demo


class MedianShapes(demo.PanelTest):
    family = "filters/median_shapes"
    panels = ("colours", "cross", "row", "column", "weighted", "planes")

    def setUp(self):
        self.use_noise(53, 31)

    def noisy(self, x, y):
        number = 5 * (x + 2) + 7 * (y + 2)
        if number % 13 == 0:
            return (255 if number % 2 == 0 else 0,) * 3
        return self.photo[min(max(y, 0), self.height - 1) * self.width + min(max(x, 0), self.width - 1)]

    def expect_pixels(self, panel, value):
        self.expect("median_shapes-" + panel, 3, [bytes(value(x, y)) for y in range(self.height)
                                                  for x in range(self.width)])

    def expect_medians(self, panel, window):
        def median(x, y):
            colours = [self.noisy(x + i, y + j) for i, j in window]
            return [sorted(channel)[len(window) // 2] for channel in zip(*colours)]
        self.expect_pixels(panel, median)

    def test_shapes(self):
        line = range(-2, 3)
        self.expect_medians("row", [(i, 0) for i in line])
        self.expect_medians("column", [(0, j) for j in (-1, 0, 1)])
        self.expect_medians("cross", [(i, j) for i in line for j in line if i == 0 or j == 0])

    def test_colours(self):
        def nearest(x, y):
            colours = [self.noisy(x + i, y + j) for j in (-1, 0, 1) for i in (-1, 0, 1)]
            return min(colours, key=lambda a: sum(abs(p - q) for b in colours for p, q in zip(a, b)))
        self.expect_pixels("colours", nearest)

    def test_weights(self):
        def median(x, y):
            samples = [self.noisy(x + i, y + j)[1] for j in (-1, 0, 1) for i in (-1, 0, 1)]
            return sorted(samples + 4 * [samples[4]])[6]
        self.expect("median_shapes-weighted", 1, [bytes(median(x, y) for y in range(self.height)
                                                        for x in range(self.width))])

    def test_planes(self):
        self.expect("median_shapes-planes", 1, [bytes(sorted(pixel)[1] for pixel in self.photo)])
