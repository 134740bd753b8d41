/* The analyser's picture: for each channel the digits found, the waveform and the spectrogram over time. */
#ifndef EXAMPLES_PICTURE_H
#define EXAMPLES_PICTURE_H

#include "dtmf.h"
#include "envelope.h"
#include "spectrogram.h"

enum {
  kPictureColumns = 1400, /* of envelopes and spectrograms */
  kMaxTracks = 2
};
extern const double kPictureHighest; /* Hz, of spectrograms */

typedef struct {
  Envelope envelope;
  Spectrogram spectrogram;
  const Digit* digits;
  int digitCount;
} Track;

typedef struct {
  const char* title;
  const char* subtitle;
  Track track[kMaxTracks];
  int tracks;
  double duration; /* seconds */
} Picture;

/* Ends the program when the file cannot be written. */
void DrawPicture(const Picture* picture, const char* path);

#endif
