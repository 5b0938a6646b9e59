# SPDX-License-Identifier: MIT
import cmath

import demo

GROUND, AXIS, SMALL = bytes((40, 40, 40)), bytes((255, 64, 0)), bytes((0, 160, 255))


class Moments(demo.PanelTest):
    family = "statistics/moments"
    panels = ("axes",)

    def test_axes(self):
        """The long axis is where the middle of the shape and its direction are, by the shape's own pixels."""
        self.use_noise(53, 31)
        places = [(i % self.width, i // self.width) for i in range(self.width * self.height)]
        result = self.results.pixels("moments-axes")
        for pixel, photo in zip(result, self.photo, strict=True):
            self.assertIn(pixel, (GROUND, AXIS, SMALL, photo))
        # Both axes end inside the shape, so that what is not ground is the shape.
        shape = [complex(x, y) for (x, y), pixel in zip(places, result) if pixel != GROUND]
        axis = [complex(x, y) for (x, y), pixel in zip(places, result) if pixel == AXIS]
        self.assertGreater(len(axis), 10)
        self.assertIn(SMALL, result)
        middle = sum(shape) / len(shape)
        self.assertLess(abs(sum(axis) / len(axis) - middle), 1)
        direction = cmath.sqrt(sum((z - middle) ** 2 for z in shape))  # half the angle of the second moments
        along = max(axis, key=lambda z: abs(z - middle)) - middle
        self.assertLess(abs((along / direction).imag), 1.5 / abs(direction) * 2)
