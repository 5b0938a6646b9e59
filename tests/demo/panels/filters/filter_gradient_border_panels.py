# SPDX-License-Identifier: MIT
import demo


class FilterGradientBorder(demo.PanelTest):
    family = "filters/filter_gradient_border"
    panels = ("across", "down")

    def setUp(self):
        self.use_noise(53, 31)

    def green(self, x, y):
        def inside(n, count):
            return -n if n < 0 else 2 * count - 2 - n if n >= count else n
        return self.photo[inside(y, self.height) * self.width + inside(x, self.width)][1]

    def expect(self, panel, gradient):
        pixels = self.results.pixels("filter_gradient_border-" + panel)
        for y in range(self.height):
            for x in range(self.width):
                value = gradient(lambda i, j: self.green(x + i, y + j))
                towards_zero = abs(value) // 4 * (1 if value > 0 else -1)
                self.assertEqual(pixels[y * self.width + x][0], min(255, max(0, 128 + towards_zero)))

    def test_gradients(self):
        weights = lambda outer, middle: ((-1, outer), (0, middle), (1, outer))
        self.expect("across", lambda at: sum(w * (at(1, j) - at(-1, j)) for j, w in weights(3, 10)))
        self.expect("down", lambda at: sum(w * (at(i, 1) - at(i, -1)) for i, w in weights(1, 2)))
