/*
 * A three-band equaliser of biquads: bass, middle and treble of a recording raised or lowered.
 *
 *   biquad_equaliser RECORDING [FOLDER [BASS MIDDLE TREBLE]]
 *
 * The gains are in dB, by default 6, -4 and 5. Writes biquads.wav into the folder (by default the current
 * one, which must exist), of the first channel. The recording runs through in blocks of 10 ms, as from a
 * sound card; the taps of the three sections are handed over as 32-bit integers with 29 fractional bits.
 * Prints the gain at ten frequencies, as designed and as measured with sines, and the time that a second of
 * audio takes.
 *
 * With the library and libsndfile installed:
 *
 *   cc -o biquad_equaliser biquad_equaliser.c failure.c speech.c usage.c \
 *     $(pkg-config --cflags --libs orbs90lgc sndfile) -lm
 */
#include <math.h>
#include <orbs90lgc.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>

#include "failure.h"
#include "speech.h"
#include "usage.h"

enum { kSections = 3, kTaps = 6 * kSections, kFractionalBits = 29 };

static const double kPi = 3.14159265358979323846;

/* b[0], b[1], b[2], a[0], a[1], a[2]. */
typedef struct {
  double taps[6];
} Section;

/* The designs of R. Bristow-Johnson's "Cookbook formulae for audio equalizer biquad filter coefficients". */
static Section Shelf(double frequency, double rate, double decibels, int high) {
  const double a = pow(10.0, decibels / 40.0);
  const double w = 2.0 * kPi * frequency / rate;
  const double c = high ? -cos(w) : cos(w);
  const double s = high ? -1.0 : 1.0;
  const double slope = 2.0 * sqrt(a) * sin(w) / sqrt(2.0);
  const Section section = {{a * ((a + 1.0) - (a - 1.0) * c + slope),
                            s * 2.0 * a * ((a - 1.0) - (a + 1.0) * c),
                            a * ((a + 1.0) - (a - 1.0) * c - slope), (a + 1.0) + (a - 1.0) * c + slope,
                            s * -2.0 * ((a - 1.0) + (a + 1.0) * c), (a + 1.0) + (a - 1.0) * c - slope}};
  return section;
}

static Section Peak(double frequency, double rate, double decibels) {
  const double a = pow(10.0, decibels / 40.0);
  const double w = 2.0 * kPi * frequency / rate;
  const double alpha = sin(w) / (2.0 * 0.8);
  const Section section = {
      {1.0 + alpha * a, -2.0 * cos(w), 1.0 - alpha * a, 1.0 + alpha / a, -2.0 * cos(w), 1.0 - alpha / a}};
  return section;
}

/* |H| at w radians a sample, in dB. */
static double DesignedGain(const Section* sections, double w) {
  double gain = 0.0;
  for (int s = 0; s < kSections; ++s) {
    double power[2];
    for (int i = 0; i < 2; ++i) {
      const double* t = sections[s].taps + 3 * i;
      const double re = t[0] + t[1] * cos(w) + t[2] * cos(2.0 * w);
      const double im = t[1] * sin(w) + t[2] * sin(2.0 * w);
      power[i] = re * re + im * im;
    }
    gain += 10.0 * log10(power[0] / power[1]);
  }
  return gain;
}

static double Energy(const Orb16s* x, Orb32s count) {
  double energy = 0.0;
  for (Orb32s i = 0; i < count; ++i) energy += (double)x[i] * x[i];
  return energy;
}

/* The gain of a sine that runs for a second; its first half is the filter's time to settle. */
static double MeasuredGain(IIRState* state, double w, Orb32s rate) {
  Orb16s* sine = Allocate((size_t)rate, sizeof *sine);
  Orb16s* result = Allocate((size_t)rate, sizeof *result);
  for (Orb32s i = 0; i < rate; ++i) sine[i] = (Orb16s)lrint(4000.0 * sin(w * i));
  Check(legacy90orbsIIRSetDlyLine32s_16s(state, NULL), "clearing the delay line");
  Check(legacy90orbsIIR32s_16s_Sfs(sine, result, rate, state, 0), "filtering a sine");
  const Orb32s half = rate / 2;
  const double gain = 10.0 * log10(Energy(result + half, rate - half) / Energy(sine + half, rate - half));
  free(sine);
  free(result);
  return gain;
}

static IIRState* MakeFilter(const Section* sections) {
  /* Shelves of great gain have large numbers: all of a section divided by its a[0] leaves a filter the same.
   */
  Orb32s taps[kTaps];
  for (int s = 0; s < kSections; ++s) {
    for (int i = 0; i < 6; ++i) {
      const double tap = ldexp(sections[s].taps[i] / sections[s].taps[3], kFractionalBits);
      if (fabs(tap) > INT32_MAX) Fail("a gain is too large");
      taps[6 * s + i] = (Orb32s)lrint(tap);
    }
  }
  IIRState* state = NULL;
  Check(legacy90orbsIIRInitAlloc32s_BiQuad_16s(&state, taps, kSections, kFractionalBits, NULL),
        "making the filter");
  return state;
}

static double ParseGain(const char* text) {
  char* end;
  const double gain = strtod(text, &end);
  if (end == text || *end != '\0' || !(fabs(gain) <= 20.0))
    Fail("'%s' is no gain between -20 and 20 dB", text);
  return gain;
}

int main(int argc, char** argv) {
  ReadUsage(argc, argv, "biquad_equaliser RECORDING [FOLDER [BASS MIDDLE TREBLE]]",
            "Raises or lowers bass, middle and treble by gains in dB, by default 6, -4 and 5; writes\n"
            "biquads.wav into the folder, by default the current one.");
  const char* folder = argc > 2 ? argv[2] : ".";
  double gains[kSections] = {6.0, -4.0, 5.0};
  for (int i = 0; argc == 6 && i < kSections; ++i) gains[i] = ParseGain(argv[3 + i]);

  const Speech speech = ReadSpeech(argv[1]);
  const double rate = speech.rate;
  if (rate < 4000.0) Fail("'%s' has only %d samples a second", argv[1], speech.rate);
  const Section sections[kSections] = {Shelf(200.0, rate, gains[0], 0), Peak(1000.0, rate, gains[1]),
                                       Shelf(0.25 * rate < 3000.0 ? 0.25 * rate : 3000.0, rate, gains[2], 1)};
  IIRState* state = MakeFilter(sections);

  printf("Equaliser: bass %+.1f dB, middle %+.1f dB, treble %+.1f dB\n", gains[0], gains[1], gains[2]);
  printf("           %8s  %8s  %8s\n", "Hz", "designed", "measured");
  for (double frequency = 31.25; frequency < 0.5 * rate && frequency < 20000.0; frequency *= 2.0) {
    const double w = 2.0 * kPi * frequency / rate;
    printf("           %8.0f  %8.2f  %8.2f\n", frequency, DesignedGain(sections, w),
           MeasuredGain(state, w, speech.rate));
  }

  Orb16s* samples = Allocate((size_t)speech.count, sizeof *samples);
  ToIntegers(speech.samples, samples, speech.count);
  Check(legacy90orbsIIRSetDlyLine32s_16s(state, NULL), "clearing the delay line");
  const Orb32s block = speech.rate / 100;
  const clock_t begin = clock();
  for (Orb32s done = 0; done < speech.count;) {
    const Orb32s count = speech.count - done < block ? speech.count - done : block;
    Check(legacy90orbsIIR32s_16s_ISfs(samples + done, count, state, 0), "filtering");
    done += count;
  }
  const double seconds = (double)(clock() - begin) / CLOCKS_PER_SEC;
  Orb32s limited = 0;
  for (Orb32s i = 0; i < speech.count; ++i) limited += samples[i] == 32767 || samples[i] == -32768;

  char* path = PathOf(folder, "biquads.wav");
  WriteSpeech(path, samples, speech.count, speech.rate);
  printf("           a second of audio took %.1f us; %ld of %ld samples reached full scale\n",
         1e6 * seconds * rate / speech.count, (long)limited, (long)speech.count);
  printf("           %s\n", path);

  free(path);
  free(samples);
  Check(legacy90orbsIIRFree32s_16s(state), "freeing the filter");
  free(speech.samples);
  return EXIT_SUCCESS;
}
