/* A font of 5 by 8 dots, drawn at twice its size with smoothed slants. */
#ifndef EXAMPLES_FONT_H
#define EXAMPLES_FONT_H

#include <stdbool.h>

enum { kGlyphWidth = 10, kGlyphHeight = 16, kGlyphAdvance = 12 };

/* Whether a dot of the character is set; x and y from its upper left corner. Characters outside ASCII look
 * like a question mark. */
bool GlyphDot(char character, int x, int y);

#endif
