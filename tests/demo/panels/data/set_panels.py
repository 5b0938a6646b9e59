# SPDX-License-Identifier: MIT
import demo

ORANGE, TEAL = bytes((255, 140, 0)), bytes((0, 150, 160))


class Set(demo.PanelTest):
    family = "data/set"
    panels = ("ring", "blue-filled", "alpha-kept")

    def setUp(self):
        self.use_noise(53, 31)
        self.cut = self.results.pixels("copy_channels-alpha")

    def test_one_channel(self):
        self.expect("set-blue-filled", 3, (bytes((p[1], p[1], 96)) for p in self.photo))

    def test_alpha_stays(self):
        kept = self.results.pixels("set-alpha-kept")
        upper = self.height // 2 * self.width
        self.assertEqual([p[3] for p in kept], [p[3] for p in self.cut])
        self.assertEqual(kept[:upper], self.cut[:upper])
        self.assertEqual({p[:3] for p in kept[upper:]}, {TEAL})

    def test_under_a_mask(self):
        rings = self.results.pixels("set-ring")
        for p, cut, ring in zip(self.photo, self.cut, rings, strict=True):
            self.assertIn(ring, (p, ORANGE) if cut[3] else (p,))
        self.assertIn(ORANGE, rings)
