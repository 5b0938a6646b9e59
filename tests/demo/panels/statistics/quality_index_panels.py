# SPDX-License-Identifier: MIT
import demo


class QualityIndex(demo.PanelTest):
    family = "statistics/quality_index"
    panels = ("blocks2", "blocks8")

    def setUp(self):
        self.use_noise(53, 31)

    def quality(self, copy, c):
        a, b = ([pixel[c] for pixel in image] for image in (self.photo, copy))
        n = len(a)
        ma, mb = sum(a) / n, sum(b) / n
        covariance = sum((x - ma) * (y - mb) for x, y in zip(a, b))
        variances = sum((x - ma) ** 2 for x in a) + sum((y - mb) ** 2 for y in b)
        return 4 * covariance * ma * mb / (variances * (ma * ma + mb * mb))

    def nearest(self, size, whole):
        """For each place of the whole, that of the smaller image, and for each place there, that of the whole."""
        down = [int((i + 0.5) * whole / size - 1e-10) for i in range(size)]
        up = [int((i + 0.5) * size / whole - 1e-10) for i in range(whole)]
        return [down[i] for i in up]

    def test_bars(self):
        for block in (2, 8):
            columns = self.nearest(max(1, self.width // block), self.width)
            rows = self.nearest(max(1, self.height // block), self.height)
            copy = [self.photo[y * self.width + x] for y in rows for x in columns]
            result = self.results.pixels(f"quality_index-blocks{block}")
            half, bar = self.height // 2, max(1, self.height // 20)
            self.assertEqual(result[:half * self.width], self.photo[:half * self.width])
            below = [half + i for i in range(self.height - half) if i >= 6 * bar]
            for y in below:
                self.assertEqual(result[y * self.width:(y + 1) * self.width], copy[y * self.width:(y + 1) * self.width])
            for c in range(3):
                top = half + 2 * c * bar
                colour = bytes(255 if c == i else 0 for i in range(3))
                row = result[top * self.width:(top + 1) * self.width]
                length = next((i for i, pixel in enumerate(row) if pixel != colour), self.width)
                self.assertAlmostEqual(length, max(0, self.quality(copy, c)) * self.width, delta=1.01)
