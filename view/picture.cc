// SPDX-License-Identifier: MIT
#include "picture.h"

#include <X11/Xutil.h>
#include <png.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <vector>

namespace view {
namespace {

struct Rows {
  unsigned width = 0;
  unsigned height = 0;
  std::vector<png_byte> bytes;  // red, green, blue per pixel
};

// One channel of a pixel, spread over 0 to 255.
png_byte Channel(unsigned long pixel, unsigned long mask) {
  if (mask == 0) return 0;
  const unsigned long low = mask & (~mask + 1);
  const unsigned long highest = mask / low;
  return static_cast<png_byte>((pixel & mask) / low * 255 / highest);
}

Rows ReadImage(XImage* image) {
  Rows rows;
  rows.width = static_cast<unsigned>(image->width);
  rows.height = static_cast<unsigned>(image->height);
  rows.bytes.reserve(std::size_t{3} * rows.width * rows.height);
  for (int y = 0; y < image->height; ++y) {
    for (int x = 0; x < image->width; ++x) {
      const unsigned long pixel = XGetPixel(image, x, y);
      for (unsigned long mask : {image->red_mask, image->green_mask, image->blue_mask}) {
        rows.bytes.push_back(Channel(pixel, mask));
      }
    }
  }
  return rows;
}

// The part of the window that lies on the screen; null when nothing does.
XImage* GrabWindow(Display* display, ::Window window) {
  XWindowAttributes at;
  if (!XGetWindowAttributes(display, window, &at) || at.map_state != IsViewable) return nullptr;
  int x = 0;
  int y = 0;
  ::Window child = None;
  XTranslateCoordinates(display, window, at.root, 0, 0, &x, &y, &child);
  const int left = std::max(0, -x);
  const int top = std::max(0, -y);
  const int right = std::min(at.width, WidthOfScreen(at.screen) - x);
  const int bottom = std::min(at.height, HeightOfScreen(at.screen) - y);
  if (left >= right || top >= bottom) return nullptr;
  return XGetImage(display, window, left, top, static_cast<unsigned>(right - left),
                   static_cast<unsigned>(bottom - top), AllPlanes, ZPixmap);
}

}  // namespace

std::string WritePicture(Widget shell, const std::filesystem::path& file) {
  const std::unique_ptr<XImage, void (*)(XImage*)> image(
      GrabWindow(XtDisplay(shell), XtWindow(shell)), [](XImage* grabbed) {
        if (grabbed) XDestroyImage(grabbed);
      });
  if (!image) return "the window is not on the screen";
  if (image->red_mask == 0) return "the screen has no true colours";
  const Rows rows = ReadImage(image.get());
  png_image png{};
  png.version = PNG_IMAGE_VERSION;
  png.width = rows.width;
  png.height = rows.height;
  png.format = PNG_FORMAT_RGB;
  errno = 0;
  if (png_image_write_to_file(&png, file.c_str(), 0, rows.bytes.data(), 0, nullptr)) return "";
  return errno ? std::strerror(errno) : png.message;
}

}  // namespace view
