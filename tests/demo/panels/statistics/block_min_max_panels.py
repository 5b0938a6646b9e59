# SPDX-License-Identifier: MIT
import demo


class BlockMinMax(demo.PanelTest):
    family = "statistics/block_min_max"
    panels = ("contrast",)

    def test_contrast(self):
        self.use_noise(53, 31)
        blocks = {}
        for i, p in enumerate(self.photo):
            blocks.setdefault((i // 53 // 4, i % 53 // 4), []).append(p[1])
        self.assertEqual(len(blocks), 14 * 8)
        self.expect("block_min_max-contrast", 1, [bytes(max(blocks[b]) - min(blocks[b]) for b in sorted(blocks))])
