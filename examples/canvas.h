/* A picture in memory, with what a diagram needs to be drawn on it, and as a PNG file. */
#ifndef EXAMPLES_CANVAS_H
#define EXAMPLES_CANVAS_H

typedef struct {
  unsigned char red, green, blue;
} Colour;

typedef struct {
  Colour* pixels; /* row by row, from the upper left corner */
  int width;
  int height;
} Canvas;

typedef struct {
  int x, y, width, height;
} Box;

/* Where in a text the given point lies. */
typedef enum { kLeft, kMiddle, kRight } Anchor;

Canvas MakeCanvas(int width, int height, Colour background);
void FreeCanvas(Canvas* canvas);

/* All drawing leaves out what lies beyond the canvas. */
void DrawPixel(Canvas* canvas, int x, int y, Colour colour);
void DrawBox(Canvas* canvas, Box box, Colour colour);
void DrawOutline(Canvas* canvas, Box box, Colour colour);

/* Mixes the colour into what is there; opacity is 0 to 1. */
void TintBox(Canvas* canvas, Box box, Colour colour, double opacity);

/* Text whose upper edge is at y. */
void DrawText(Canvas* canvas, int x, int y, Anchor anchor, const char* text, Colour colour);
int TextWidth(const char* text);

/* Ends the program when the file cannot be written. */
void WritePng(const Canvas* canvas, const char* path);

#endif
