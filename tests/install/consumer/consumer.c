/* SPDX-License-Identifier: MIT */
/* A program in C99 that uses lumi alone. Its result counts what went wrong. */
#include <lumi.h>
#include <stdio.h>

static int failures;

static void expect(int holds, const char* what) {
  if (holds) return;
  printf("failed: %s\n", what);
  ++failures;
}

int main(void) {
  const LumiSize size = {5, 3};
  const Lum8u colour[3] = {10, 20, 30};
  int step = 0, planeStep = 0;
  Lum8u* image = lumiMalloc_8u_C3(size.width, size.height, &step);
  Lum8u* plane = lumiMalloc_8u_C1(size.width, 3 * size.height, &planeStep);
  Lum8u* planes[3];
  int i;

  expect(image != NULL && plane != NULL, "images are allocated");
  expect(step == 64 && planeStep == 64, "rows are padded to 64 bytes");
  if (!image || !plane) return 1;
  for (i = 0; i < 3; ++i) planes[i] = plane + i * size.height * planeStep;

  expect(lumiSet_8u_C3R(colour, image, step, size) == lumStatusOk, "fill");
  expect(image[2 * step + 12] == 10 && image[2 * step + 14] == 30, "the last pixel is filled");
  expect(lumiCopy_8u_C3P3R(image, step, planes, planeStep, size) == lumStatusOk, "split into planes");
  expect(planes[0][4] == 10 && planes[1][planeStep] == 20 && planes[2][2 * planeStep + 4] == 30, "planes");

  expect(lumiSet_8u_C3R(NULL, image, step, size) == lumStatusNullPointer, "a null pointer is refused");
  {
    const LumiSize none = {0, 3};
    expect(lumiCopy_8u_C3R(image, step, image, step, none) == lumStatusBadSize, "an empty region is refused");
  }
  expect(lumiGetLibVersion()->major == 1, "the version is that of the package");
  lumiFree(plane);
  lumiFree(image);
  return failures;
}
