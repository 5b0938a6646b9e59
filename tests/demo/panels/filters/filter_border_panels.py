# SPDX-License-Identifier: MIT
import demo


class FilterBorder(demo.PanelTest):
    family = "filters/filter_border"
    panels = ("blurred", "sharpened", "embossed", "corner-value", "corner-edges")

    def setUp(self):
        self.use_noise(53, 31)

    def sample(self, x, y, c):
        column, row = min(max(x, 0), self.width - 1), min(max(y, 0), self.height - 1)
        return self.photo[row * self.width + column][c]

    def places(self):
        return ((x, y, c) for y in range(0, self.height, 3) for x in range(0, self.width, 4) for c in range(3))

    def test_blur(self):
        blurred = self.results.pixels("filter_border-blurred")
        for x, y, c in self.places():
            total = sum(self.sample(x + i, y + j, c) for i in range(-4, 5) for j in range(-4, 5))
            self.assertAlmostEqual(blurred[y * self.width + x][c], total / 81, delta=0.5001)

    def test_sharpened(self):
        sharpened = self.results.pixels("filter_border-sharpened")
        for x, y, c in self.places():
            around = sum(self.sample(x + i, y + j, c) for i, j in ((0, 1), (0, -1), (1, 0), (-1, 0)))
            self.assertEqual(sharpened[y * self.width + x][c], min(255, max(0, 5 * self.sample(x, y, c) - around)))

    def test_border_in_memory(self):
        embossed = self.results.pixels("filter_border-embossed")
        self.assertEqual(embossed[:self.width], self.photo[:self.width])
        self.assertEqual(embossed[-self.width:], self.photo[-self.width:])
        self.assertNotEqual(embossed, self.photo)

    def test_corners(self):
        self.assertNotEqual(self.results["filter_border-corner-value"], self.results["filter_border-corner-edges"])
