#include "canvas.h"

#include <errno.h>
#include <png.h>
#include <stdlib.h>
#include <string.h>

#include "failure.h"
#include "font.h"

Canvas MakeCanvas(int width, int height, Colour background) {
  Canvas canvas = {Allocate((size_t)width * (size_t)height, sizeof(Colour)), width, height};
  DrawBox(&canvas, (Box){0, 0, width, height}, background);
  return canvas;
}

void FreeCanvas(Canvas* canvas) { free(canvas->pixels); }

/* Null beyond the canvas. */
static Colour* PixelAt(Canvas* canvas, int x, int y) {
  if (x < 0 || x >= canvas->width || y < 0 || y >= canvas->height) return NULL;
  return &canvas->pixels[(size_t)y * (size_t)canvas->width + (size_t)x];
}

void DrawPixel(Canvas* canvas, int x, int y, Colour colour) {
  Colour* pixel = PixelAt(canvas, x, y);
  if (pixel != NULL) *pixel = colour;
}

static unsigned char Mix(unsigned char under, unsigned char over, double opacity) {
  return (unsigned char)(under + (over - under) * opacity + 0.5);
}

void TintBox(Canvas* canvas, Box box, Colour colour, double opacity) {
  for (int y = box.y; y < box.y + box.height; ++y) {
    for (int x = box.x; x < box.x + box.width; ++x) {
      Colour* pixel = PixelAt(canvas, x, y);
      if (pixel == NULL) continue;
      pixel->red = Mix(pixel->red, colour.red, opacity);
      pixel->green = Mix(pixel->green, colour.green, opacity);
      pixel->blue = Mix(pixel->blue, colour.blue, opacity);
    }
  }
}

void DrawBox(Canvas* canvas, Box box, Colour colour) { TintBox(canvas, box, colour, 1); }

void DrawOutline(Canvas* canvas, Box box, Colour colour) {
  DrawBox(canvas, (Box){box.x, box.y, box.width, 1}, colour);
  DrawBox(canvas, (Box){box.x, box.y + box.height - 1, box.width, 1}, colour);
  DrawBox(canvas, (Box){box.x, box.y, 1, box.height}, colour);
  DrawBox(canvas, (Box){box.x + box.width - 1, box.y, 1, box.height}, colour);
}

int TextWidth(const char* text) {
  const int characters = (int)strlen(text);
  return characters == 0 ? 0 : characters * kGlyphAdvance - (kGlyphAdvance - kGlyphWidth);
}

void DrawText(Canvas* canvas, int x, int y, Anchor anchor, const char* text, Colour colour) {
  if (anchor == kMiddle) x -= TextWidth(text) / 2;
  if (anchor == kRight) x -= TextWidth(text);
  for (; *text != '\0'; ++text, x += kGlyphAdvance) {
    for (int row = 0; row < kGlyphHeight; ++row) {
      for (int column = 0; column < kGlyphWidth; ++column) {
        if (GlyphDot(*text, column, row)) DrawPixel(canvas, x + column, y + row, colour);
      }
    }
  }
}

void WritePng(const Canvas* canvas, const char* path) {
  png_image image = {0};
  image.version = PNG_IMAGE_VERSION;
  image.width = (png_uint_32)canvas->width;
  image.height = (png_uint_32)canvas->height;
  image.format = PNG_FORMAT_RGB;
  FILE* file = fopen(path, "wb");
  if (file == NULL) Fail("cannot write '%s': %s", path, strerror(errno));
  const int isWritten = png_image_write_to_stdio(&image, file, 0, canvas->pixels, 0, NULL);
  if (!isWritten) Fail("cannot write '%s': %s", path, image.message);
  if (fclose(file) != 0) Fail("cannot write all of '%s': %s", path, strerror(errno));
}
