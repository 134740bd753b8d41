#include "picture.h"

#include <math.h>
#include <stdio.h>
#include <string.h>

#include "canvas.h"
#include "font.h"

const double kPictureHighest = 4000;

enum {
  kLeftMargin = 112,
  kRightMargin = 120,
  kTop = 76,
  kStrip = 40, /* for the digits, in rows */
  kWaveHeight = 150,
  kGap = 22,
  kSpectrumHeight = 360,
  kAxis = 56, /* for the time */
  kTrackHeight = kStrip + kWaveHeight + kGap + kSpectrumHeight + kAxis,
  kBottom = 30,
  kTick = 6
};

/* What the colours of the spectrogram span, in dBm0. */
static const double kCeiling = 0;
static const double kFloor = -80;

static const Colour kPaper = {255, 255, 255};
static const Colour kInk = {32, 32, 32};
static const Colour kFaint = {110, 110, 110};
static const Colour kGrid = {222, 222, 222};
static const Colour kPeaks = {138, 173, 212};
static const Colour kRms = {31, 95, 168};
static const Colour kMark = {214, 72, 20};
static const Colour kToneMark = {255, 255, 255};

/* From black by purple and orange to pale yellow: brightness grows evenly, so that a print in grey reads the
 * same. */
static Colour ColourOf(double level) {
  static const Colour kScale[] = {{0, 0, 4},      {27, 12, 65},   {74, 12, 107},  {120, 28, 109},
                                  {165, 44, 96},  {207, 68, 70},  {237, 105, 37}, {251, 155, 6},
                                  {247, 209, 61}, {252, 255, 164}};
  enum { kSteps = sizeof kScale / sizeof *kScale - 1 };
  const double share = (level - kFloor) / (kCeiling - kFloor);
  if (!(share > 0)) return kScale[0];
  if (share >= 1) return kScale[kSteps];
  const int step = (int)(share * kSteps);
  const double part = share * kSteps - step;
  const Colour a = kScale[step];
  const Colour b = kScale[step + 1];
  return (Colour){(unsigned char)(a.red + part * (b.red - a.red)),
                  (unsigned char)(a.green + part * (b.green - a.green)),
                  (unsigned char)(a.blue + part * (b.blue - a.blue))};
}

static int ColumnAt(const Picture* p, double seconds) {
  const double share = fmin(fmax(seconds / p->duration, 0), 1);
  return kLeftMargin + (int)(share * (kPictureColumns - 1) + 0.5);
}

/* The columns of a digit, wide enough to be seen. */
static Box SpanOf(const Picture* p, const Digit* digit, int y, int height) {
  enum { kLeastWidth = 4 };
  const int x = ColumnAt(p, digit->start);
  const int width = ColumnAt(p, digit->end) - x;
  return (Box){x, y, width > kLeastWidth ? width : kLeastWidth, height};
}

/* The least step of 1, 2 or 5 times a power of ten, or of a round number of minutes, that leaves room for
 * labels. */
static double TimeStep(double duration) {
  static const double kMinutes[] = {60, 120, 300, 600, 1800, 3600, 7200, 18000, 36000};
  const double least = duration * 100 / kPictureColumns;
  for (double power = 1e-4; power < 60; power *= 10) {
    if (power >= least) return power;
    if (2 * power >= least && 2 * power < 60) return 2 * power;
    if (5 * power >= least && 5 * power < 60) return 5 * power;
  }
  for (size_t i = 0; i < sizeof kMinutes / sizeof *kMinutes; ++i) {
    if (kMinutes[i] >= least) return kMinutes[i];
  }
  return 86400 * ceil(least / 86400);
}

static void TimeLabel(char* text, size_t size, double seconds, double duration) {
  if (duration < 120) {
    snprintf(text, size, "%.6g", seconds);
  } else if (duration < 7200) {
    snprintf(text, size, "%.0f:%02.0f", floor(seconds / 60), fmod(seconds, 60));
  } else {
    const double minutes = floor(seconds / 60);
    snprintf(text, size, "%.0f:%02.0f:%02.0f", floor(minutes / 60), fmod(minutes, 60), fmod(seconds, 60));
  }
}

static void DrawTimeAxis(Canvas* canvas, const Picture* p, int y) {
  const double step = TimeStep(p->duration);
  for (int i = 0; i * step <= p->duration; ++i) {
    char label[32];
    const int x = ColumnAt(p, i * step);
    TimeLabel(label, sizeof label, i * step, p->duration);
    DrawBox(canvas, (Box){x, y, 1, kTick}, kInk);
    DrawText(canvas, x, y + kTick + 3, kMiddle, label, kInk);
  }
  const char* unit = p->duration < 120 ? "time, s" : p->duration < 7200 ? "time, min:s" : "time, h:min:s";
  DrawText(canvas, kLeftMargin + kPictureColumns / 2, y + kTick + 3 + kGlyphHeight + 4, kMiddle, unit, kInk);
}

/* A tick on the left with its label. */
static void DrawLeftTick(Canvas* canvas, int y, const char* label) {
  DrawBox(canvas, (Box){kLeftMargin - kTick, y, kTick, 1}, kInk);
  DrawText(canvas, kLeftMargin - kTick - 6, y - kGlyphHeight / 2, kRight, label, kInk);
}

/* Each label goes into the lowest row that has room for it. Where there is none it is left out; the marks
 * below show all digits. */
static void DrawDigits(Canvas* canvas, const Picture* p, const Track* track, int top) {
  enum { kRows = 2 };
  int end[kRows] = {0};
  for (int i = 0; i < track->digitCount; ++i) {
    const Box span = SpanOf(p, &track->digits[i], top, kStrip);
    const char label[2] = {track->digits[i].tones.symbol, '\0'};
    const int x = span.x + span.width / 2;
    int row = 0;
    while (row < kRows && x - kGlyphAdvance / 2 < end[row]) ++row;
    if (row == kRows) continue;
    DrawText(canvas, x, top + kStrip - (row + 1) * (kGlyphHeight + 3), kMiddle, label, kMark);
    end[row] = x + kGlyphAdvance / 2;
  }
}

static void DrawWaveform(Canvas* canvas, const Picture* p, const Track* track, int top) {
  const Envelope* e = &track->envelope;
  double greatest = 0;
  for (int i = 0; i < e->columns; ++i) {
    greatest = fmax(greatest, fmax(-e->column[i].least, e->column[i].greatest));
  }
  double scale = 1;
  while (scale > 1.0 / 1024 && greatest <= scale / 2) scale /= 2;

  const int middle = top + kWaveHeight / 2;
  const double unit = (kWaveHeight / 2 - 1) / scale;
  for (int i = -1; i <= 1; ++i) {
    char label[16];
    const int y = middle - (int)lround(i * unit * scale);
    snprintf(label, sizeof label, i == 0 ? "0" : "%+.0f", i * scale * 32768);
    DrawBox(canvas, (Box){kLeftMargin, (y + middle) / 2, kPictureColumns, 1}, kGrid);
    DrawLeftTick(canvas, y, label);
  }
  for (int i = 0; i < track->digitCount; ++i) {
    TintBox(canvas, SpanOf(p, &track->digits[i], top, kWaveHeight), kMark, 0.22);
  }
  for (int i = 0; i < e->columns; ++i) {
    const EnvelopeColumn* column = &e->column[i];
    if (column->count == 0) continue;
    const int x = kLeftMargin + i;
    const int high = middle - (int)lround(fmin(column->greatest, scale) * unit);
    const int low = middle - (int)lround(fmax(column->least, -scale) * unit);
    DrawBox(canvas, (Box){x, high, 1, low - high + 1}, kPeaks);
    const int rms = (int)lround(fmin(sqrt(column->squares / (double)column->count), scale) * unit);
    const int rmsHigh = middle - rms > high ? middle - rms : high;
    const int rmsLow = middle + rms < low ? middle + rms : low;
    DrawBox(canvas, (Box){x, rmsHigh, 1, rmsLow - rmsHigh + 1}, kRms);
  }
  DrawOutline(canvas, (Box){kLeftMargin - 1, top - 1, kPictureColumns + 2, kWaveHeight + 2}, kInk);
  const int right = kLeftMargin + kPictureColumns + 16;
  DrawText(canvas, right, top, kLeft, "16-bit", kFaint);
  DrawText(canvas, right, top + 20, kLeft, "steps", kFaint);
  DrawText(canvas, right, top + 50, kLeft, "peaks", kPeaks);
  DrawText(canvas, right, top + 70, kLeft, "RMS", kRms);
}

static int RowAt(double frequency, int top) {
  return top + (int)lround((1 - frequency / kPictureHighest) * (kSpectrumHeight - 1));
}

static void DrawSpectrogram(Canvas* canvas, const Picture* p, const Track* track, int top) {
  const Spectrogram* s = &track->spectrogram;
  for (int i = 0; i < s->columns; ++i) {
    const Orb32f* power = s->power + (size_t)i * (size_t)s->points;
    for (int y = 0; y < kSpectrumHeight; ++y) {
      const double place = (1 - (double)y / (kSpectrumHeight - 1)) * kPictureHighest / s->spacing;
      const int point = (int)place < s->points - 2 ? (int)place : s->points - 2;
      const double part = place - point;
      const double level =
          (1 - part) * LevelOf(power[point] + 1e-15) + part * LevelOf(power[point + 1] + 1e-15);
      DrawPixel(canvas, kLeftMargin + i, top + y, ColourOf(level));
    }
  }
  for (int i = 0; i < track->digitCount; ++i) {
    for (int group = 0; group < kGroups; ++group) {
      enum { kHalf = 6 };
      const int y = RowAt(track->digits[i].tones.frequency[group], top);
      DrawOutline(canvas, SpanOf(p, &track->digits[i], y - kHalf, 2 * kHalf + 1), kToneMark);
    }
  }
  for (int kilohertz = 0; kilohertz * 1000 <= kPictureHighest; ++kilohertz) {
    char label[16];
    snprintf(label, sizeof label, kilohertz == 0 ? "%d" : "%d kHz", kilohertz);
    DrawLeftTick(canvas, RowAt(kilohertz * 1000, top), label);
    TintBox(canvas, (Box){kLeftMargin, RowAt(kilohertz * 1000, top), kPictureColumns, 1}, kPaper, 0.2);
  }
  DrawOutline(canvas, (Box){kLeftMargin - 1, top - 1, kPictureColumns + 2, kSpectrumHeight + 2}, kInk);
}

static void DrawColourBar(Canvas* canvas, int top) {
  enum { kWidth = 20, kTop2 = 30, kStep = 20 };
  const Box bar = {kLeftMargin + kPictureColumns + 16, top + kTop2, kWidth, kSpectrumHeight - kTop2};
  DrawText(canvas, bar.x, top, kLeft, "dBm0", kInk);
  for (int y = 0; y < bar.height; ++y) {
    const double level = kCeiling - (kCeiling - kFloor) * y / (bar.height - 1);
    DrawBox(canvas, (Box){bar.x, bar.y + y, bar.width, 1}, ColourOf(level));
  }
  DrawOutline(canvas, bar, kInk);
  for (double level = kFloor; level <= kCeiling; level += kStep) {
    char label[16];
    const int y = bar.y + (int)lround((kCeiling - level) / (kCeiling - kFloor) * (bar.height - 1));
    snprintf(label, sizeof label, "%.0f", level);
    DrawBox(canvas, (Box){bar.x + bar.width, y, kTick, 1}, kInk);
    DrawText(canvas, bar.x + bar.width + kTick + 5, y - kGlyphHeight / 2, kLeft, label, kInk);
  }
}

/* As much of the text as fits; the last three characters of a cut one are dots. */
static void DrawLine(Canvas* canvas, int y, const char* text, Colour colour) {
  enum { kCharacters = (kPictureColumns + kRightMargin - 20) / kGlyphAdvance };
  char line[kCharacters + 1];
  if (snprintf(line, sizeof line, "%s", text) > kCharacters) strcpy(line + kCharacters - 3, "...");
  DrawText(canvas, kLeftMargin, y, kLeft, line, colour);
}

void DrawPicture(const Picture* p, const char* path) {
  Canvas canvas = MakeCanvas(kLeftMargin + kPictureColumns + kRightMargin,
                             kTop + p->tracks * kTrackHeight + kBottom, kPaper);
  DrawLine(&canvas, 16, p->title, kInk);
  DrawLine(&canvas, 40, p->subtitle, kFaint);
  for (int i = 0; i < p->tracks; ++i) {
    const Track* track = &p->track[i];
    const int strip = kTop + i * kTrackHeight;
    const int wave = strip + kStrip;
    const int spectrum = wave + kWaveHeight + kGap;
    if (p->tracks > 1) {
      char name[16];
      snprintf(name, sizeof name, "line %d", i + 1);
      DrawText(&canvas, kLeftMargin - 12, strip + 2, kRight, name, kInk);
    }
    DrawDigits(&canvas, p, track, strip);
    DrawWaveform(&canvas, p, track, wave);
    DrawSpectrogram(&canvas, p, track, spectrum);
    DrawColourBar(&canvas, spectrum);
    DrawTimeAxis(&canvas, p, spectrum + kSpectrumHeight + 1);
  }
  char legend[128];
  snprintf(legend, sizeof legend,
           "Spectrogram: Hann window of %.0f ms. Marked: the digits found, and the two tones of each.",
           1e3 / p->track[0].spectrogram.spacing);
  DrawLine(&canvas, canvas.height - kBottom, legend, kFaint);
  WritePng(&canvas, path);
  FreeCanvas(&canvas);
}
