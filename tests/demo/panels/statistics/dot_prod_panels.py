# SPDX-License-Identifier: MIT
import math

import demo


class DotProducts(demo.PanelTest):
    family = "statistics/dot_prod"
    panels = ("likeness", "blur")

    def setUp(self):
        self.use_noise(53, 31)

    def row(self, y):
        return self.photo[53 * y:53 * (y + 1)]

    def test_likeness(self):
        def likeness(y, c):
            a = [p[c] for p in self.row(y)]
            b = [p[c] for p in self.flipped()[53 * y:53 * (y + 1)]]
            root = math.sqrt(sum(x * x for x in a)) * math.sqrt(sum(x * x for x in b))
            return int(254 * float(sum(p * q for p, q in zip(a, b))) / max(root, 1))
        rows = [bytes(likeness(y, c) for c in range(3)) for y in range(31)]
        self.expect("dot_prod-likeness", 3, (row for row in rows for _ in range(53)))

    def test_blur(self):
        def blurred(y):
            rows = [self.row(min(max(y + k, 0), 30)) for k in range(-2, 3)]
            for pixels in zip(*rows):
                yield bytes(sum(w * p[c] for w, p in zip((1, 2, 2, 2, 1), pixels)) // 8 for c in range(3))
        self.expect("dot_prod-blur", 3, (pixel for y in range(31) for pixel in blurred(y)))
