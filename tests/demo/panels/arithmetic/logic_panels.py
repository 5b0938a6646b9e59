# SPDX-License-Identifier: MIT
import demo


class Logic(demo.PanelTest):
    family = "arithmetic/logic"
    panels = ("negative", "posterised", "spotlight")

    def setUp(self):
        self.use_noise(53, 31)

    def test_constants(self):
        self.expect("logic-negative", 3, [bytes(255 - s for s in self.samples)])
        self.expect("logic-posterised", 3, [bytes(s // 64 * 64 for s in self.samples)])

    def test_disc(self):
        lit = self.results.pixels("logic-spotlight")
        self.assertEqual(lit[15 * 53 + 26], self.photo[15 * 53 + 26])
        self.assertEqual(lit[0], bytes(3))
        kept = sum(a == b for a, b in zip(lit, self.photo))
        self.assertEqual(kept + sum(a == bytes(3) for a in lit), len(self.photo))
        self.assertTrue(100 < kept < len(self.photo) - 100)
