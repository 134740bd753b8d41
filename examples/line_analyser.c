/*
 * Analyses the recording of a telephone line: finds the DTMF digits in it and draws what it looks like.
 *
 *   line_analyser RECORDING [PICTURE]
 *
 * The recording has one or two channels at 8000 Hz or more, in A-law, mu-law or anything else that libsndfile
 * reads. Prints each digit with its time, its levels and its deviations, and then, for scripts, one line
 * "Digits N: ..." for each channel. The picture, by default line.png, is a PNG file.
 *
 * Ends with status 0 when there were digits, 2 when there were none, and 1 when it failed.
 *
 * With the library, libsndfile and libpng installed:
 *
 *   cc -o line_analyser line_analyser.c canvas.c dtmf.c envelope.c failure.c font.c frames.c picture.c \
 *     spectrogram.c speech.c usage.c $(pkg-config --cflags --libs orbs90lgc sndfile libpng) -lm
 */
#include <math.h>
#include <orbs90lgc.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "dtmf.h"
#include "envelope.h"
#include "failure.h"
#include "picture.h"
#include "spectrogram.h"
#include "speech.h"
#include "usage.h"

enum {
  kBlock = 8000, /* frames read at a time */
  kLeastRate = 8000,
  kNoDigits = 2 /* the exit status */
};

static Recording OpenLine(const char* path) {
  const Recording recording = OpenRecording(path);
  if (recording.channels > kMaxTracks) {
    Fail("'%s' has %d channels; a line has one or two", path, recording.channels);
  }
  if (recording.rate < kLeastRate) {
    Fail("'%s' has %d samples a second; finding digits takes %d", path, recording.rate, kLeastRate);
  }
  return recording;
}

static const char* NameOf(int encoding) {
  switch (encoding) {
    case SF_FORMAT_ALAW:
      return "A-law";
    case SF_FORMAT_ULAW:
      return "mu-law";
    case SF_FORMAT_PCM_16:
      return "16-bit PCM";
    case SF_FORMAT_PCM_24:
      return "24-bit PCM";
    case SF_FORMAT_FLOAT:
      return "float PCM";
    default:
      return "other coding";
  }
}

/* Tells on standard error how far a long analysis has come, every two seconds. */
static void ReportProgress(const Recording* recording, Orb64s done, time_t* next) {
  enum { kInterval = 2 };
  const time_t now = time(NULL);
  if (now < *next) return;
  if (*next != 0) {
    fprintf(stderr, "%3.0f %%: %.0f of %.0f s\n", 100.0 * (double)done / (double)recording->frames,
            (double)done / recording->rate, (double)recording->frames / recording->rate);
  }
  *next = now + kInterval;
}

/* Sends the recording through everything; returns how many frames there were. */
static Orb64s Analyse(const Recording* recording, Picture* picture, DigitFinder* const* finder) {
  Orb32f* block[kMaxTracks];
  for (int i = 0; i < picture->tracks; ++i) block[i] = Allocate(kBlock, sizeof *block[i]);
  Orb64s done = 0;
  time_t next = 0;
  Orb32s count;
  while ((count = ReadFrames(recording, block, kBlock)) > 0) {
    for (int i = 0; i < picture->tracks; ++i) {
      FeedEnvelope(&picture->track[i].envelope, block[i], count);
      FeedSpectrogram(&picture->track[i].spectrogram, block[i], count);
      FeedDigitFinder(finder[i], block[i], count);
    }
    done += count;
    ReportProgress(recording, done, &next);
  }
  for (int i = 0; i < picture->tracks; ++i) {
    FinishSpectrogram(&picture->track[i].spectrogram);
    FinishDigitFinder(finder[i]);
    free(block[i]);
  }
  return done;
}

static void PrintDigit(const Digit* digit, int line) {
  const TonePair* tones = &digit->tones;
  printf("  %10.3f  %4d  %5c  %8.0f", digit->start, line, tones->symbol, 1e3 * (digit->end - digit->start));
  for (int group = 0; group < kGroups; ++group) {
    const double nominal = NominalFrequency(tones->symbol, group);
    printf("  %8.1f  %+6.2f  %6.1f", tones->frequency[group],
           100 * (tones->frequency[group] - nominal) / nominal, LevelOf(tones->power[group]));
  }
  printf("  %+6.1f\n", LevelOf(tones->power[kHigh]) - LevelOf(tones->power[kLow]));
}

static void PrintDigits(const Picture* picture) {
  int total = 0;
  for (int i = 0; i < picture->tracks; ++i) total += picture->track[i].digitCount;
  if (total > 0) {
    printf("\n  %10s  %4s  %5s  %8s  %-24s  %-24s  %6s\n", "start", "line", "digit", "duration", "low tone",
           "high tone", "twist");
    printf("  %10s  %4s  %5s  %8s", "s", "", "", "ms");
    for (int group = 0; group < kGroups; ++group) printf("  %8s  %6s  %6s", "Hz", "%", "dBm0");
    printf("  %6s\n", "dB");
  }
  for (int i = 0; i < picture->tracks; ++i) {
    for (int k = 0; k < picture->track[i].digitCount; ++k) PrintDigit(&picture->track[i].digits[k], i + 1);
  }
  putchar('\n');
  for (int i = 0; i < picture->tracks; ++i) {
    printf("Digits %d: ", i + 1);
    for (int k = 0; k < picture->track[i].digitCount; ++k) putchar(picture->track[i].digits[k].tones.symbol);
    putchar('\n');
  }
}

static const char* BaseName(const char* path) {
  const char* slash = strrchr(path, '/');
  return slash != NULL ? slash + 1 : path;
}

int main(int argc, char** argv) {
  ReadUsage(argc, argv, "line_analyser RECORDING [PICTURE]",
            "Finds the DTMF digits in the recording of a telephone line and draws it, by default as\n"
            "line.png. Ends with status 0 when there were digits, 2 when there were none, 1 when it\n"
            "failed.");
  const char* path = argc > 2 ? argv[2] : "line.png";
  const Recording recording = OpenLine(argv[1]);
  const double duration = (double)recording.frames / recording.rate;
  char subtitle[160];
  snprintf(subtitle, sizeof subtitle, "%s, %d Hz, %s, %.2f s; 0 dBm0 is 3.14 dB below a sine of full scale",
           NameOf(recording.encoding), recording.rate,
           recording.channels == 1 ? "one channel" : "two channels", duration);
  printf("Recording: %s\n           %s\n", argv[1], subtitle);
  printf("Variant:   %s\n", legacy90orbsGetLibVersion()->name);

  Picture picture = {BaseName(argv[1]), subtitle, {{{0}, {0}, NULL, 0}}, recording.channels, duration};
  DigitFinder* finder[kMaxTracks];
  for (int i = 0; i < picture.tracks; ++i) {
    Track* track = &picture.track[i];
    track->envelope = MakeEnvelope(kPictureColumns, recording.frames);
    track->spectrogram = MakeSpectrogram(kPictureColumns, recording.frames, recording.rate, kPictureHighest);
    finder[i] = MakeDigitFinder(recording.rate);
  }
  const Orb64s frames = Analyse(&recording, &picture, finder);
  if (frames < 1) Fail("'%s' holds no samples", argv[1]);
  if (frames < recording.frames) {
    fprintf(stderr, "warning: '%s' is damaged: it ends after %.2f s\n", argv[1],
            (double)frames / recording.rate);
  }

  int total = 0;
  for (int i = 0; i < picture.tracks; ++i) {
    picture.track[i].digits = FoundDigits(finder[i], &picture.track[i].digitCount);
    total += picture.track[i].digitCount;
  }
  PrintDigits(&picture);
  DrawPicture(&picture, path);
  printf("Picture:   %s\n", path);

  for (int i = 0; i < picture.tracks; ++i) {
    FreeEnvelope(&picture.track[i].envelope);
    FreeSpectrogram(&picture.track[i].spectrogram);
    FreeDigitFinder(finder[i]);
  }
  CloseRecording(&recording);
  return total > 0 ? EXIT_SUCCESS : kNoDigits;
}
