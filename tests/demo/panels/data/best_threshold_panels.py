# SPDX-License-Identifier: MIT
import demo


def best_threshold(samples):
    """By the definition: exactly, in fractions that whole numbers stand for."""
    def variance(t):
        low, high = ([s for s in samples if (s > t) == above] for above in (False, True))
        if not low or not high:
            return 0
        return (sum(low) * len(high) - sum(high) * len(low)) ** 2 / (len(low) * len(high))
    return max(range(256), key=variance)


class BestThreshold(demo.PanelTest):
    family = "data/best_threshold"
    panels = ("segmented", "mask")

    def test_parts(self):
        self.use_noise(53, 31)
        green = [p[1] for p in self.photo]
        threshold = best_threshold(green)
        self.assertGreater(threshold, 0)
        self.expect("best_threshold-mask", 1, [bytes(255 * (g > threshold) for g in green)])
        self.expect("best_threshold-segmented", 3,
                    (p if g > threshold else bytes([g] * 3) for p, g in zip(self.photo, green)))
