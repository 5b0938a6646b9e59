# SPDX-License-Identifier: MIT
import demo


class FilterMedianBorder(demo.PanelTest):
    family = "filters/filter_median_border"
    panels = ("painted",)

    def test_painted(self):
        self.use_noise(53, 31)
        channels, pixels = self.results["filter_median_border-painted"]
        self.assertEqual(channels, 1)
        for y in range(0, self.height, 6):
            for x in range(0, self.width, 5):
                rows = [min(max(y + j, 0), self.height - 1) * self.width for j in range(-10, 11)]
                columns = [min(max(x + i, 0), self.width - 1) for i in range(-10, 11)]
                window = sorted(self.photo[row + column][1] for row in rows for column in columns)
                self.assertEqual(pixels[y * self.width + x], window[220])
