# SPDX-License-Identifier: MIT
import demo

HEIGHT, GROUND = 128, 24


class Histogram(demo.PanelTest):
    family = "statistics/histogram"
    panels = ("plot", "equalized")

    def setUp(self):
        self.use_noise(53, 31)
        self.counts = [[0] * 256 for _ in range(3)]
        for pixel in self.photo:
            for channel, sample in enumerate(pixel):
                self.counts[channel][sample] += 1

    def test_plot(self):
        most = max(max(channel) for channel in self.counts)
        heights = [[n * HEIGHT // most for n in channel] for channel in self.counts]
        self.expect("histogram-plot", 3, (
            bytes(255 if heights[c][x] >= HEIGHT - y else GROUND for c in range(3))
            for y in range(HEIGHT) for x in range(256)))

    def test_equalized(self):
        shares = [[sum(channel[:level + 1]) * 255 // len(self.photo) for level in range(256)]
                  for channel in self.counts]
        self.expect("histogram-equalized", 3, (
            bytes(shares[c][pixel[c]] for c in range(3)) for pixel in self.photo))
