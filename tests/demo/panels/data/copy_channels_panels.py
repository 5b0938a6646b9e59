# SPDX-License-Identifier: MIT
import demo


class CopyChannels(demo.PanelTest):
    family = "data/copy_channels"
    panels = ("swapped", "red", "green", "blue", "grey", "opaque", "alpha")

    def setUp(self):
        self.use_noise(53, 31)

    def test_planes(self):
        for channel, name in enumerate(("red", "green", "blue")):
            self.expect(f"copy_channels-{name}", 1, (p[channel:channel + 1] for p in self.photo))
        self.expect("copy_channels-swapped", 3, (p[::-1] for p in self.photo))
        self.expect("copy_channels-grey", 3, (p[1:2] * 3 for p in self.photo))

    def test_alpha(self):
        self.expect("copy_channels-opaque", 4, (p + b"\xff" for p in self.photo))
        cut = self.results.pixels("copy_channels-alpha")
        self.assertEqual([p[:3] for p in cut], self.photo)
        self.assertEqual({p[3] for p in cut}, {0, 255})
        self.assertEqual(cut[self.height // 2 * self.width + self.width // 2][3], 255)
