# SPDX-License-Identifier: MIT
import demo


class SwapChannels(demo.PanelTest):
    family = "data/swap_channels"
    panels = ("rotated",)

    def test_channels_are_passed_on(self):
        self.use_noise(53, 31)
        self.expect("swap_channels-rotated", 3, (p[1:] + p[:1] for p in self.photo))
