# SPDX-License-Identifier: MIT
import demo


class Resize(demo.PanelTest):
    family = "geometry/resize"
    panels = ("reduced-nearest", "reduced-linear", "enlarged-nearest", "enlarged-linear", "enlarged-tiles")

    def setUp(self):
        self.use_noise(80, 48)

    def test_reduced(self):
        across, down = self.width * 2 // 5, self.height * 2 // 5
        reduced = []
        for y in range(down):
            for x in range(across):
                row = int((y + 0.5) * (self.height / down) - 1e-10)
                column = int((x + 0.5) * (self.width / across) - 1e-10)
                reduced.append(self.photo[row * self.width + column])
        self.expect("resize-reduced-nearest", 3, reduced)
        self.assertEqual(len(self.results["resize-reduced-linear"][1]), across * down * 3)

    def test_enlarged(self):
        part = [self.photo[(18 - 3 + y) * self.width + 50 - 5 + x] for y in range(6) for x in range(10)]
        self.expect("resize-enlarged-nearest", 3, (part[y // 8 * 10 + x // 8] for y in range(48) for x in range(80)))
        self.assertEqual(self.results["resize-enlarged-tiles"], self.results["resize-enlarged-linear"])
        self.assertNotEqual(self.results["resize-enlarged-linear"], self.results["resize-enlarged-nearest"])
