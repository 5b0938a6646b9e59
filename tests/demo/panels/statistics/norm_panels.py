# SPDX-License-Identifier: MIT
import math

import demo
import png


class Norms(demo.PanelTest):
    family = "statistics/norm"
    panels = ("inf", "l1", "l2", "figures")

    def setUp(self):
        self.use_noise(53, 31)

    def expect_rows(self, name, norm):
        def differences(y, c):
            pairs = zip(self.photo[53 * y:53 * (y + 1)], self.flipped()[53 * y:53 * (y + 1)])
            return [abs(p[c] - q[c]) for p, q in pairs]
        rows = [bytes(int(norm(differences(y, c))) for c in range(3)) for y in range(31)]
        self.expect(name, 3, (row for row in rows for _ in range(53)))

    def test_largest(self):
        self.expect_rows("norm-inf", max)

    def test_mean(self):
        self.expect_rows("norm-l1", lambda d: sum(d) / 53)

    def test_root_of_mean_square(self):
        self.expect_rows("norm-l2", lambda d: math.sqrt(sum(x * x for x in d)) / math.sqrt(53))

    def test_figures(self):
        """Six lines of text in one colour, with the background between them."""
        width, _, channels, samples = png.decode(self.results.files["norm-figures"].read_bytes())
        self.assertEqual(channels, 3)
        card, text = bytes((44, 48, 58)), bytes((240, 242, 246))
        samples = demo.pixels(samples, 3)
        rows = [samples[i:i + width] for i in range(0, len(samples), width)]
        self.assertEqual(set(map(bytes, samples)), {card, text})
        written = [any(bytes(pixel) == text for pixel in row) for row in rows]
        self.assertEqual(sum(now and not before for before, now in zip([False] + written, written)), 6)
