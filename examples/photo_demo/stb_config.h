/* SPDX-License-Identifier: MIT */
/* What of the stb headers is used: PNG and JPEG in, PNG out, files opened by us. */
#ifndef STB_CONFIG_H
#define STB_CONFIG_H

#define STBI_ONLY_PNG
#define STBI_ONLY_JPEG
#define STBI_WRITE_NO_STDIO

#endif
