/* SPDX-License-Identifier: MIT */
/* Fills an image, copies a region of it, and asks what became of a bad argument. */
#include <lumi.h>
#include <stdio.h>

int main(void) {
  const LumiSize whole = {640, 480}, part = {100, 50};
  const Lum8u orange[3] = {255, 128, 0};
  int step = 0;
  Lum8u* image = lumiMalloc_8u_C3(whole.width, whole.height, &step);
  LumStatus filled = lumiSet_8u_C3R(orange, image, step, whole);
  LumStatus copied = lumiCopy_8u_C3R(image, step, image + 300 * step + 3 * 200, step, part);
  LumStatus refused = lumiCopy_8u_C3R(NULL, step, image, step, part);
  printf("filled: %d, copied: %d, null source: %d\n", filled, copied, refused); /* 0, 0, -8 */
  lumiFree(image);
  return filled != lumStatusOk || copied != lumStatusOk || refused != lumStatusNullPointer;
}
