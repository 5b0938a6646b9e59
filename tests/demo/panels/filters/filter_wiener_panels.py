# SPDX-License-Identifier: MIT
import demo


class FilterWiener(demo.PanelTest):
    family = "filters/filter_wiener"
    panels = ("denoised", "noisy")

    def setUp(self):
        self.use_noise(53, 31)

    def window(self, grain, x, y, c):
        return [grain[min(max(y + j, 0), self.height - 1) * self.width + min(max(x + i, 0), self.width - 1)][c]
                for j in range(-2, 3) for i in range(-2, 3)]

    def test_denoised(self):
        grain, got = self.results.pixels("filter_wiener-noisy"), self.results.pixels("filter_wiener-denoised")
        for c in range(3):
            windows = [self.window(grain, x, y, c) for y in range(self.height) for x in range(self.width)]
            means = [sum(w) / 25 for w in windows]
            variances = [sum(s * s for s in w) / 25 - mean * mean for w, mean in zip(windows, means)]
            noise = sum(variances) / len(variances)
            for pixel, sample, mean, variance in zip(got, grain, means, variances):
                wanted = sample[c] + (mean - sample[c]) * noise / max(variance, noise)
                self.assertAlmostEqual(pixel[c], wanted, delta=0.51)
