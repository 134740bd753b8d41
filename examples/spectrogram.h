/* The course of a signal's spectrum over time, by a real transform of 16-bit samples with a 32-bit spectrum.
 */
#ifndef EXAMPLES_SPECTROGRAM_H
#define EXAMPLES_SPECTROGRAM_H

#include <orbs90lgc.h>

#include "frames.h"

typedef struct {
  /* For each of the columns, the power at each of the points, the greatest of all segments in the column;
   * relative to a sine of full scale. */
  Orb32f* power;
  int columns;
  int points;
  double spacing; /* Hz from point to point, the first at 0 */

  Orb64s frames; /* the length of the signal */
  Framer framer;
  Orb32f* window;
  Orb32f* windowed;
  Orb16s* segment;
  Orb32s* spectrum; /* CCS */
  FFTSpec_R_16s32s* plan;
  void* work;
  Orb32s scaleFactor;
  double fullScale; /* what the spectrum shows of a sine of full scale */
} Spectrogram;

/* Of a signal of so many frames, in so many columns, up to the highest frequency that is wanted. */
Spectrogram MakeSpectrogram(int columns, Orb64s frames, int rate, double highest);
void FreeSpectrogram(Spectrogram* spectrogram);

/* The signal, in pieces of any length, and its end. */
void FeedSpectrogram(Spectrogram* spectrogram, const Orb32f* samples, Orb32s count);
void FinishSpectrogram(Spectrogram* spectrogram);

#endif
