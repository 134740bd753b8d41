#include "spectrogram.h"

#include <math.h>
#include <stdlib.h>

#include "failure.h"
#include "speech.h"

/* Long enough to part the tones of telephony, short enough to show when they start. */
static const double kSegmentSeconds = 0.032;
static const double kPi = 3.14159265358979323846;

Spectrogram MakeSpectrogram(int columns, Orb64s frames, int rate, double highest) {
  Orb32s order = 1;
  while ((1 << order) < kSegmentSeconds * rate) ++order;
  const Orb32s length = 1 << order;
  const Orb64s framesAColumn = frames / columns;

  Spectrogram s = {0};
  s.columns = columns;
  s.frames = frames;
  s.spacing = (double)rate / length;
  s.points = (int)fmin(ceil(highest / s.spacing), length / 2) + 1;
  s.power = Allocate((size_t)columns * (size_t)s.points, sizeof *s.power);
  /* In a short signal a segment for each column, in a long one no gap between segments. */
  s.framer = MakeFramer(length, framesAColumn < 1            ? 1
                                : framesAColumn < length / 2 ? (Orb32s)framesAColumn
                                                             : length / 2);
  s.window = Allocate((size_t)length, sizeof *s.window);
  s.windowed = Allocate((size_t)length, sizeof *s.windowed);
  s.segment = Allocate((size_t)length, sizeof *s.segment);
  s.spectrum = Allocate((size_t)length + 2, sizeof *s.spectrum);
  double windowSum = 0;
  for (Orb32s i = 0; i < length; ++i) {
    s.window[i] = (Orb32f)(0.5 - 0.5 * cos(2 * kPi * i / length));
    windowSum += s.window[i];
  }

  Check(legacy90orbsFFTInitAlloc_R_16s32s(&s.plan, order, FftScaleNone, HintNone), "FFTInitAlloc_R_16s32s");
  Orb32s workSize;
  Check(legacy90orbsFFTGetBufSize_R_16s32s(s.plan, &workSize), "FFTGetBufSize_R_16s32s");
  s.work = Allocate((size_t)workSize, 1);
  /* The window's sum is half the length: no point exceeds 2^15 * 2^(order-1), which this takes to 2^30. */
  s.scaleFactor = order - 16;
  s.fullScale = ldexp(32768 * windowSum / 2, -s.scaleFactor);
  return s;
}

void FreeSpectrogram(Spectrogram* s) {
  Check(legacy90orbsFFTFree_R_16s32s(s->plan), "FFTFree_R_16s32s");
  FreeFramer(&s->framer);
  free(s->power);
  free(s->window);
  free(s->windowed);
  free(s->segment);
  free(s->spectrum);
  free(s->work);
}

static int ColumnAt(const Spectrogram* s, Orb64s frame) {
  const Orb64s column = frame * s->columns / s->frames;
  return column < 0 ? 0 : column < s->columns ? (int)column : s->columns - 1;
}

static void TakeSegment(void* spectrogram, const Orb32f* samples, Orb64s start) {
  Spectrogram* s = spectrogram;
  for (Orb32s i = 0; i < s->framer.length; ++i) s->windowed[i] = s->window[i] * samples[i];
  ToIntegers(s->windowed, s->segment, s->framer.length);
  Check(legacy90orbsFFTFwd_RToCCS_16s32s_Sfs(s->segment, s->spectrum, s->plan, s->scaleFactor, s->work),
        "FFTFwd_RToCCS_16s32s_Sfs");

  /* A segment stands for one hop around its middle, which can be more than one column. */
  const Orb64s middle = start + s->framer.length / 2;
  const int last = ColumnAt(s, middle + s->framer.hop / 2);
  for (int k = 0; k < s->points; ++k) {
    const double re = s->spectrum[2 * k] / s->fullScale;
    const double im = s->spectrum[2 * k + 1] / s->fullScale;
    const Orb32f power = (Orb32f)(re * re + im * im);
    for (int column = ColumnAt(s, middle - s->framer.hop / 2); column <= last; ++column) {
      Orb32f* greatest = &s->power[(size_t)column * (size_t)s->points + (size_t)k];
      if (power > *greatest) *greatest = power;
    }
  }
}

void FeedSpectrogram(Spectrogram* s, const Orb32f* samples, Orb32s count) {
  FeedFrames(&s->framer, samples, count, TakeSegment, s);
}

void FinishSpectrogram(Spectrogram* s) { FinishFrames(&s->framer, TakeSegment, s); }
