// SPDX-License-Identifier: MIT
#include "picture.h"

#include <X11/Xutil.h>
#include <X11/extensions/Xcomposite.h>
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

// `visual` tells which bits are which colour; an image of a pixmap does not.
Rows ReadImage(XImage* image, const Visual& visual) {
  Rows rows;
  rows.width = static_cast<unsigned>(image->width);
  rows.height = static_cast<unsigned>(image->height);
  rows.bytes.reserve(std::size_t{3} * rows.width * rows.height);
  for (int y = 0; y < image->height; ++y) {
    for (int x = 0; x < image->width; ++x) {
      const unsigned long pixel = XGetPixel(image, x, y);
      for (unsigned long mask : {visual.red_mask, visual.green_mask, visual.blue_mask}) {
        rows.bytes.push_back(Channel(pixel, mask));
      }
    }
  }
  return rows;
}

using Image = std::unique_ptr<XImage, void (*)(XImage*)>;

void DestroyImage(XImage* image) {
  if (image) XDestroyImage(image);
}

bool HasComposite(Display* display) {
  int event = 0;
  int error = 0;
  int major = 0;
  int minor = 3;  // window pixmaps came with 0.2
  return XCompositeQueryExtension(display, &event, &error) &&
         XCompositeQueryVersion(display, &major, &minor) && (major > 0 || minor >= 2);
}

// From the server's own picture of the window, whole and without what lies over it.
Image GrabApart(Display* display, ::Window window, const XWindowAttributes& at) {
  const ::Window top = TopWindow(display, window);
  XWindowAttributes top_at;
  int x = 0;
  int y = 0;
  ::Window child = None;
  if (!XGetWindowAttributes(display, top, &top_at)) return {nullptr, DestroyImage};
  XTranslateCoordinates(display, window, top, 0, 0, &x, &y, &child);
  const Pixmap pixmap = XCompositeNameWindowPixmap(display, top);
  // The picture begins at the outer corner of the border.
  XImage* image = XGetImage(display, pixmap, x + top_at.border_width, y + top_at.border_width,
                            static_cast<unsigned>(at.width), static_cast<unsigned>(at.height),
                            AllPlanes, ZPixmap);
  XFreePixmap(display, pixmap);
  return {image, DestroyImage};
}

// The part of the window that is on the screen; null when there is none.
Image GrabFromScreen(Display* display, ::Window window, const XWindowAttributes& at) {
  int x = 0;
  int y = 0;
  ::Window child = None;
  XTranslateCoordinates(display, window, at.root, 0, 0, &x, &y, &child);
  const int left = std::max(0, -x);
  const int top = std::max(0, -y);
  const int right = std::min(at.width, WidthOfScreen(at.screen) - x);
  const int bottom = std::min(at.height, HeightOfScreen(at.screen) - y);
  if (left >= right || top >= bottom) return {nullptr, DestroyImage};
  return {XGetImage(display, window, left, top, static_cast<unsigned>(right - left),
                    static_cast<unsigned>(bottom - top), AllPlanes, ZPixmap),
          DestroyImage};
}

bool kept_apart = false;

}  // namespace

::Window TopWindow(Display* display, ::Window window) {
  for (;;) {
    ::Window root = None;
    ::Window parent = None;
    ::Window* children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, window, &root, &parent, &children, &count)) return window;
    if (children) XFree(children);
    if (parent == root || parent == None) return window;
    window = parent;
  }
}

bool KeepPicturesApart(Display* display) {
  kept_apart = HasComposite(display);
  if (kept_apart) {
    XCompositeRedirectSubwindows(display, DefaultRootWindow(display), CompositeRedirectAutomatic);
  }
  return kept_apart;
}

std::string WritePicture(Widget shell, const std::filesystem::path& file) {
  Display* display = XtDisplay(shell);
  const ::Window window = XtWindow(shell);
  XWindowAttributes at;
  if (!XGetWindowAttributes(display, window, &at) || at.map_state != IsViewable) {
    return "the window is not on the screen";
  }
  const Image image =
      kept_apart ? GrabApart(display, window, at) : GrabFromScreen(display, window, at);
  if (!image) return "the window is not on the screen";
  if (at.visual->red_mask == 0) return "the screen has no true colours";
  const Rows rows = ReadImage(image.get(), *at.visual);
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
