# SPDX-License-Identifier: MIT
import demo


class Morphology3x3(demo.PanelTest):
    family = "filters/morphology3x3"
    panels = ("contours", "closed")

    def setUp(self):
        self.use_noise(53, 31)

    def around(self, image, x, y, c):
        return [image(x + i, y + j)[c] for j in (-1, 0, 1) for i in (-1, 0, 1)]

    def pixel(self, x, y):
        return self.photo[min(max(y, 0), self.height - 1) * self.width + min(max(x, 0), self.width - 1)]

    def test_contours(self):
        contours = self.results.pixels("morphology3x3-contours")
        for y in range(self.height):
            for x in range(0, self.width, 3):
                for c in range(3):
                    window = self.around(self.pixel, x, y, c)
                    self.assertEqual(contours[y * self.width + x][c], min(255, 4 * (max(window) - min(window))))

    def test_closed(self):
        # In place the margin stays as it was.
        def dilated(x, y):
            if not (0 <= x < self.width and 0 <= y < self.height):
                return self.pixel(x, y)
            return [max(self.around(self.pixel, x, y, c)) for c in range(3)]

        closed = self.results.pixels("morphology3x3-closed")
        for y in range(0, self.height, 2):
            for x in range(0, self.width, 3):
                self.assertEqual(closed[y * self.width + x][0], min(self.around(dilated, x, y, 0)))
