# SPDX-License-Identifier: MIT
import demo


class Lbp(demo.PanelTest):
    family = "filters/lbp"
    panels = ("patterns", "distances")

    def setUp(self):
        self.use_noise(53, 31)

    def at(self, samples, x, y):
        column, row = min(max(x, 0), self.width - 1), min(max(y, 0), self.height - 1)
        return samples[row * self.width + column]

    def codes(self):
        green = [pixel[1] for pixel in self.photo]
        around = ((-1, -1), (0, -1), (1, -1), (1, 0), (1, 1), (0, 1), (-1, 1), (-1, 0))
        return [sum((self.at(green, x + i, y + j) >= self.at(green, x, y)) << k for k, (i, j) in enumerate(around))
                for y in range(self.height) for x in range(self.width)]

    def test_patterns(self):
        self.assertEqual(self.results["lbp-patterns"], (1, bytes(self.codes())))

    def test_distances(self):
        codes = self.codes()
        channels, got = self.results["lbp-distances"]
        self.assertEqual(channels, 1)
        for y in range(0, self.height, 2):
            for x in range(0, self.width, 3):
                wanted = sum(bin(self.at(codes, x + i, y + j) ^ self.at(codes, x + i + 4, y + j)).count("1")
                             for i in range(-2, 3) for j in range(-2, 3))
                self.assertEqual(got[y * self.width + x], wanted, (x, y))
