/* SPDX-License-Identifier: MIT */
/* What of the stb headers is used: PNG and JPEG in, PNG out. */
#define STBI_ONLY_PNG
#define STBI_ONLY_JPEG
#define STBI_WRITE_NO_STDIO

#define STB_IMAGE_IMPLEMENTATION
#include <stb/stb_image.h>

#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb/stb_image_write.h>
