/*
 * The spectrum of a recording, by the 16-bit real transform.
 *
 *   spectrum RECORDING [FOLDER [NAME]]
 *
 * Cuts the first channel into segments that overlap by half, gives each a Hann window, transforms it and
 * averages the power (P. D. Welch, "The use of fast Fourier transform for the estimation of power spectra",
 * 1967). Leaves in the folder (by default the current one, which must exist) NAME.tsv (by default
 * spectrum.tsv), the data of spectrum.gnuplot: frequency in Hz, mean and greatest level in dBFS, one line a
 * point of the transform. 0 dBFS is a sine of full scale.
 *
 * With the library and libsndfile installed:
 *
 *   cc -o spectrum spectrum.c failure.c speech.c usage.c \
 *     $(pkg-config --cflags --libs orbs90lgc sndfile) -lm
 */
#include <math.h>
#include <orbs90lgc.h>
#include <stdio.h>
#include <stdlib.h>

#include "failure.h"
#include "speech.h"
#include "usage.h"

enum {
  kHz = 25,      /* the points lie no farther apart than this, */
  kMaxOrder = 16 /* unless the rate is beyond all audio */
};
static const double kPi = 3.14159265358979323846;

/* The transform of one length, with all that a segment needs on its way. */
typedef struct {
  FFTSpec_R_16s* plan;
  void* work;
  Orb16s* window; /* in Q15 */
  Orb16s* segment;
  Orb16s* spectrum; /* CCS: pairs of real and imaginary part */
  Orb32s length;
  Orb32s points; /* of the spectrum: from 0 to half the rate */
  double fullScale;
} Transform;

/* Powers of all points, over a number of segments. */
typedef struct {
  double* sum;
  double* greatest;
  long segments;
} Power;

static Orb32s OrderFor(int rate) {
  Orb32s order = 1;
  while (order < kMaxOrder && (double)rate / (1 << order) > kHz) ++order;
  return order;
}

static Transform MakeTransform(Orb32s order) {
  Transform t = {0};
  t.length = 1 << order;
  t.points = t.length / 2 + 1;
  Check(legacy90orbsFFTInitAlloc_R_16s(&t.plan, order, FftScaleNone, HintAccurate), "FFTInitAlloc_R_16s");
  Orb32s workSize;
  Check(legacy90orbsFFTGetBufSize_R_16s(t.plan, &workSize), "FFTGetBufSize_R_16s");
  t.work = Allocate((size_t)workSize, 1);
  t.window = Allocate((size_t)t.length, sizeof *t.window);
  t.segment = Allocate((size_t)t.length, sizeof *t.segment);
  t.spectrum = Allocate(2 * (size_t)t.points, sizeof *t.spectrum);

  double windowSum = 0;
  for (Orb32s i = 0; i < t.length; ++i) {
    t.window[i] = (Orb16s)lround(32767 * (0.5 - 0.5 * cos(2 * kPi * i / t.length)));
    windowSum += t.window[i] / 32768.0;
  }
  /* A sine has half its amplitude at its own frequency, the other half at the negative one. */
  t.fullScale = 32768 * windowSum / 2;
  return t;
}

static void FreeTransform(Transform* t) {
  Check(legacy90orbsFFTFree_R_16s(t->plan), "FFTFree_R_16s");
  free(t->work);
  free(t->window);
  free(t->segment);
  free(t->spectrum);
}

/*
 * Windows count samples, then zeros, into the segment; returns the scale factor that suits it: no point of
 * the spectrum exceeds the sum of the magnitudes, so the least factor that brings this sum into 16 bits
 * saturates nothing and rounds as little as possible. Quiet segments get a negative one, which magnifies.
 */
static Orb32s Window(const Transform* t, const Orb16s* samples, Orb32s count) {
  Orb64s sum = 0;
  for (Orb32s i = 0; i < t->length; ++i) {
    const Orb32s product = i < count ? (Orb32s)samples[i] * t->window[i] : 0;
    t->segment[i] = (Orb16s)((product + (1 << 14)) >> 15);
    sum += abs(t->segment[i]);
  }
  Orb32s scaleFactor = -15;
  while (ldexp((double)sum, -scaleFactor) > INT16_MAX) ++scaleFactor;
  return scaleFactor;
}

static void AddSegment(const Transform* t, const Orb16s* samples, Orb32s count, Power* power) {
  const Orb32s scaleFactor = Window(t, samples, count);
  Check(legacy90orbsFFTFwd_RToCCS_16s_Sfs(t->segment, t->spectrum, t->plan, scaleFactor, t->work),
        "FFTFwd_RToCCS_16s_Sfs");
  const double unit = ldexp(1.0, scaleFactor) / t->fullScale;
  for (Orb32s k = 0; k < t->points; ++k) {
    const double re = unit * t->spectrum[2 * k];
    const double im = unit * t->spectrum[2 * k + 1];
    const double value = re * re + im * im;
    power->sum[k] += value;
    if (value > power->greatest[k]) power->greatest[k] = value;
  }
  ++power->segments;
}

static double Decibels(double power) {
  enum { kFloor = -140 }; /* stands for silence in the plot */
  const double level = 10 * log10(power);
  return level > kFloor ? level : kFloor;
}

static void Report(const Transform* t, const Power* power, const Speech* speech, FILE* table) {
  const double spacing = (double)speech->rate / t->length;
  Orb32s strongest = 0;
  for (Orb32s k = 0; k < t->points; ++k) {
    if (power->sum[k] > power->sum[strongest]) strongest = k;
    fprintf(table, "%.3f\t%.2f\t%.2f\n", k * spacing, Decibels(power->sum[k] / power->segments),
            Decibels(power->greatest[k]));
  }
  printf("Segments:  %ld of %ld samples (%.0f ms), Hann window, points %.1f Hz apart\n", power->segments,
         (long)t->length, 1e3 * t->length / speech->rate, spacing);
  printf("Strongest: %.0f Hz, %.1f dBFS on average, %.1f dBFS at most\n", strongest * spacing,
         Decibels(power->sum[strongest] / power->segments), Decibels(power->greatest[strongest]));
}

int main(int argc, char** argv) {
  ReadUsage(argc, argv, "spectrum RECORDING [FOLDER [NAME]]",
            "Averages the spectrum of the recording; writes it as NAME.tsv, by default spectrum.tsv, into\n"
            "the folder, by default the current one.");
  const char* folder = argc > 2 ? argv[2] : ".";
  char fileName[256];
  const int nameLength = snprintf(fileName, sizeof fileName, "%s.tsv", argc > 3 ? argv[3] : "spectrum");
  if (nameLength >= (int)sizeof fileName) Fail("the name '%s' is too long", argv[3]);

  const Speech speech = ReadSpeech(argv[1]);
  Orb16s* samples = Allocate((size_t)speech.count, sizeof *samples);
  ToIntegers(speech.samples, samples, speech.count);
  printf("Recording: %s\n           %.2f s at %d Hz\n", argv[1], (double)speech.count / speech.rate,
         speech.rate);

  Transform transform = MakeTransform(OrderFor(speech.rate));
  Power power = {Allocate((size_t)transform.points, sizeof(double)),
                 Allocate((size_t)transform.points, sizeof(double)), 0};
  /* Whole segments only, but one at least. */
  Orb32s from = 0;
  do {
    AddSegment(&transform, samples + from, speech.count - from, &power);
    from += transform.length / 2;
  } while (speech.count - from >= transform.length);

  FILE* table = CreateText(folder, fileName);
  Report(&transform, &power, &speech, table);
  FinishText(table, fileName);

  free(power.sum);
  free(power.greatest);
  FreeTransform(&transform);
  free(samples);
  free(speech.samples);
  return EXIT_SUCCESS;
}
