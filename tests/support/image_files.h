// Picture files for tests, as bytes.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

// A .bmp and a .tga file of 24 bits, as wide and high as said, of one colour.
std::string BmpFile(uint16_t width, uint16_t height, COLORREF colour);
std::string TgaFile(uint16_t width, uint16_t height, COLORREF colour);
// A .tga file of one pixel, 0xAARRGGBB.
std::string TgaPixel(uint32_t argb);
// A .png file of one pixel, RGB(32, 64, 128).
std::string PngFile();

// A pixel of a bitmap.
COLORREF PixelOf(HBITMAP bitmap, int x, int y);
