# SPDX-License-Identifier: MIT
import demo


class Sad(demo.PanelTest):
    family = "statistics/sad"
    panels = ("found", "map")

    def setUp(self):
        self.use_noise(53, 31)
        self.part = (max(1, self.width // 6), max(1, self.height // 6))
        self.place = (self.width // 2, self.height // 3)

    def test_found(self):
        (width, height), (left, top) = self.part, self.place
        frame = bytes((255, 230, 0))
        for y in range(self.height):
            for x in range(self.width):
                i, j = x - left, y - top
                inside = 0 <= i < width and 0 <= j < height
                edge = inside and (i in (0, width - 1) or j in (0, height - 1))
                self.assertEqual(self.results.pixels("sad-found")[y * self.width + x],
                                 frame if edge else self.photo[y * self.width + x])

    def test_map(self):
        (width, height), (left, top) = self.part, self.place
        green = lambda x, y: self.photo[y * self.width + x][1]
        wanted = []
        for y in range(self.height - height + 1):
            for x in range(self.width - width + 1):
                total = sum(abs(green(x + i, y + j) - green(left + i, top + j)) for j in range(height) for i in range(width))
                wanted.append(min(255, 2 * (total // (width * height))))
        self.expect("sad-map", 1, [bytes(wanted)])
