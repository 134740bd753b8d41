/*
 * Passes one band of a recording through a linear-phase FIR filter, three ways, and tells what each costs.
 *
 *   equaliser RECORDING [FOLDER [LOW HIGH]]
 *
 * The band from LOW to HIGH is in Hz, by default that of the telephone, 300 to 3400. Writes into the folder
 * (by default the current one, which must exist) equalised.wav, of the first channel. The filter runs block
 * by block as on a stream, and prints the time that a second of audio takes
 *   - with taps and samples of binary32, summed directly, in blocks too short for the way through a
 * transform;
 *   - the same filter in long blocks, which go through a transform by overlap-save;
 *   - with 16-bit samples and taps quantised to 16 bits, in integer arithmetic.
 *
 * With the library and libsndfile installed:
 *
 *   cc -o equaliser equaliser.c failure.c speech.c usage.c \
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

enum {
  kShortBlock = 256, /* FIR_32f goes through the transform from 512 samples a call */
  kLongBlock = 8192,
  kMaxTaps = 4095,
  kTransition = 150 /* Hz from the pass band to the stop band */
};
static const double kPi = 3.14159265358979323846;

typedef struct {
  Orb32f* taps;
  Orb32s count; /* odd: the delay is (count - 1) / 2 samples, whatever the frequency */
} Taps;

/* The recording, lengthened by as many zeros as the filter delays it. */
typedef struct {
  Orb32f* floats;
  Orb16s* integers;
  Orb32s count;
  int rate;
} Signal;

/* One way of filtering: sends the signal through a new state in calls of at most blockLength samples, and
 * returns the seconds that these took. */
typedef struct {
  const char* name;
  Orb32s blockLength;
  double (*filter)(const Taps* taps, const Signal* signal, Orb32s blockLength, Orb32f* result);
} Way;

/*
 * The impulse response of the ideal band filter, cut to length by a Blackman window: its stop band is 74 dB
 * down, its transition 5.5 / count of the rate wide (A. V. Oppenheim and R. W. Schafer, "Discrete-Time Signal
 * Processing", the chapter on FIR design by windowing).
 */
static Taps DesignBand(double low, double high, int rate) {
  const double wanted = ceil(5.5 * rate / kTransition);
  Taps t = {NULL, wanted < kMaxTaps ? (Orb32s)wanted | 1 : kMaxTaps};
  t.taps = Allocate((size_t)t.count, sizeof *t.taps);
  const Orb32s centre = t.count / 2;
  for (Orb32s i = 0; i < t.count; ++i) {
    const double n = i - centre;
    const double ideal = n == 0
                             ? 2 * (high - low) / rate
                             : (sin(2 * kPi * high / rate * n) - sin(2 * kPi * low / rate * n)) / (kPi * n);
    const double angle = 2 * kPi * (i + 1) / (t.count + 1);
    t.taps[i] = (Orb32f)(ideal * (0.42 - 0.5 * cos(angle) + 0.08 * cos(2 * angle)));
  }
  return t;
}

static double GainAt(const Taps* t, double frequency, int rate) {
  double sum = 0;
  for (Orb32s i = 0; i < t->count; ++i) {
    sum += t->taps[i] * cos(2 * kPi * frequency / rate * (i - t->count / 2));
  }
  return 20 * log10(fabs(sum));
}

/* ---- The ways -------------------------------------------------------------------------------------------
 */

static double ProcessorTime(void) { return (double)clock() / CLOCKS_PER_SEC; }

static Orb32s BlockAt(Orb32s from, Orb32s count, Orb32s blockLength) {
  return count - from < blockLength ? count - from : blockLength;
}

static double FilterFloat(const Taps* t, const Signal* signal, Orb32s blockLength, Orb32f* result) {
  FIRFloatState* state;
  Check(legacy90orbsFIRInitAlloc_32f(&state, t->taps, t->count, NULL), "FIRInitAlloc_32f");
  const double start = ProcessorTime();
  for (Orb32s from = 0; from < signal->count; from += blockLength) {
    const Orb32s length = BlockAt(from, signal->count, blockLength);
    Check(legacy90orbsFIR_32f(signal->floats + from, result + from, length, state), "FIR_32f");
  }
  const double seconds = ProcessorTime() - start;
  Check(legacy90orbsFIRFree_32f(state), "FIRFree_32f");
  return seconds;
}

/*
 * Taps times 2^-factor, as integers. The filter's sum has 32 bits and wraps, so the factor is the least one
 * with which not even the worst signal, -32768 with the sign of each tap, gets there.
 */
static Orb32s Quantise(const Taps* t, Orb32s* integers) {
  for (Orb32s factor = -15;; ++factor) {
    Orb64s sum = 0;
    for (Orb32s i = 0; i < t->count; ++i) {
      integers[i] = (Orb32s)lround(ldexp(t->taps[i], -factor));
      sum += labs(integers[i]);
    }
    if (sum < 1 << 16) return factor;
  }
}

static double FilterInteger(const Taps* t, const Signal* signal, Orb32s blockLength, Orb32f* result) {
  Orb32s* taps = Allocate((size_t)t->count, sizeof *taps);
  Orb16s* filtered = Allocate((size_t)signal->count, sizeof *filtered);
  const Orb32s factor = Quantise(t, taps);
  FIRIntState* state;
  Check(legacy90orbsFIRInitAlloc32s_16s(&state, taps, t->count, factor, NULL), "FIRInitAlloc32s_16s");
  const double start = ProcessorTime();
  for (Orb32s from = 0; from < signal->count; from += blockLength) {
    const Orb32s length = BlockAt(from, signal->count, blockLength);
    Check(legacy90orbsFIR32s_16s_Sfs(signal->integers + from, filtered + from, length, state, 0),
          "FIR32s_16s_Sfs");
  }
  const double seconds = ProcessorTime() - start;
  Check(legacy90orbsFIRFree32s_16s(state), "FIRFree32s_16s");
  for (Orb32s i = 0; i < signal->count; ++i) result[i] = filtered[i] / 32768.0f;
  free(filtered);
  free(taps);
  return seconds;
}

static const Way kWays[] = {
    {"binary32, direct", kShortBlock, FilterFloat},
    {"binary32, through a transform", kLongBlock, FilterFloat},
    {"16-bit integers, direct", kLongBlock, FilterInteger},
};

/* The shortest of several times: what disturbs a measurement only lengthens it. */
static double BestTime(const Way* way, const Taps* t, const Signal* signal, Orb32f* result) {
  enum { kRuns = 5 };
  double best = HUGE_VAL;
  for (int run = 0; run < kRuns; ++run) {
    const double seconds = way->filter(t, signal, way->blockLength, result);
    if (seconds < best) best = seconds;
  }
  return best;
}

/* The level of the difference over that of the reference, in dB; minus infinity when there is none. */
static double DifferenceLevel(const Orb32f* result, const Orb32f* reference, Orb32s count) {
  double difference = 0;
  double power = 0;
  for (Orb32s i = 0; i < count; ++i) {
    difference += ((double)result[i] - reference[i]) * ((double)result[i] - reference[i]);
    power += (double)reference[i] * reference[i];
  }
  return difference > 0 ? 10 * log10(difference / power) : -HUGE_VAL;
}

/* ---- The program ----------------------------------------------------------------------------------------
 */

static Signal MakeSignal(const Speech* speech, Orb32s delay) {
  if (speech->count > INT32_MAX - delay) Fail("the recording is too long");
  Signal signal = {NULL, NULL, speech->count + delay, speech->rate};
  signal.floats = Allocate((size_t)signal.count, sizeof *signal.floats);
  signal.integers = Allocate((size_t)signal.count, sizeof *signal.integers);
  for (Orb32s i = 0; i < speech->count; ++i) signal.floats[i] = speech->samples[i];
  ToIntegers(signal.floats, signal.integers, signal.count);
  return signal;
}

static void WriteResult(const char* folder, const Orb32f* result, Orb32s count, int rate) {
  Orb16s* integers = Allocate((size_t)count, sizeof *integers);
  ToIntegers(result, integers, count);
  char* path = PathOf(folder, "equalised.wav");
  WriteSpeech(path, integers, count, rate);
  printf("\nWritten:   %s\n", path);
  free(path);
  free(integers);
}

static double Frequency(const char* text) {
  char* end;
  const double frequency = strtod(text, &end);
  if (end == text || *end != '\0') Fail("'%s' is not a frequency in Hz", text);
  return frequency;
}

static void PrintFilter(const Taps* t, double low, double high, int rate) {
  printf("Filter:    %.0f to %.0f Hz, %ld taps, delay %.1f ms\n", low, high, (long)t->count,
         1e3 * (t->count / 2) / rate);
  const double edges[] = {low - kTransition, high + kTransition};
  for (int i = 0; i < 2; ++i) {
    if (edges[i] < 0 || edges[i] > rate / 2.0) continue;
    printf("           %.1f dB down at %.0f Hz\n", -GainAt(t, edges[i], rate), edges[i]);
  }
}

int main(int argc, char** argv) {
  ReadUsage(argc, argv, "equaliser RECORDING [FOLDER [LOW HIGH]]",
            "Passes the band from LOW to HIGH, in Hz and by default 300 to 3400; writes equalised.wav into\n"
            "the folder, by default the current one.");
  const char* folder = argc > 2 ? argv[2] : ".";
  const double low = argc > 4 ? Frequency(argv[3]) : 300;
  double high = argc > 4 ? Frequency(argv[4]) : 3400;

  const Speech speech = ReadSpeech(argv[1]);
  if (high > speech.rate / 2.0) high = speech.rate / 2.0;
  if (!(low >= 0 && low < high)) {
    Fail("no band from %g to %g Hz below half the rate of %d Hz", low, high, speech.rate);
  }
  const double duration = (double)speech.count / speech.rate;
  printf("Recording: %s\n           %.2f s at %d Hz\n", argv[1], duration, speech.rate);

  const Taps taps = DesignBand(low, high, speech.rate);
  PrintFilter(&taps, low, high, speech.rate);
  const Orb32s delay = taps.count / 2;
  const Signal signal = MakeSignal(&speech, delay);
  Orb32f* reference = Allocate((size_t)signal.count, sizeof *reference);
  Orb32f* result = Allocate((size_t)signal.count, sizeof *result);

  printf("\n  %-30s  %8s  %16s  %17s\n", "", "block", "time per second", "difference to the");
  printf("  %-30s  %8s  %16s  %17s\n\n", "way", "samples", "of audio, us", "first way, dB");
  for (size_t i = 0; i < sizeof kWays / sizeof *kWays; ++i) {
    const double seconds = BestTime(&kWays[i], &taps, &signal, i == 0 ? reference : result);
    printf("  %-30s  %8ld  %16.1f", kWays[i].name, (long)kWays[i].blockLength, 1e6 * seconds / duration);
    if (i > 0) printf("  %17.1f", DifferenceLevel(result, reference, signal.count));
    putchar('\n');
  }
  /* The filter's delay is cut off, so that the result lies on the recording. */
  WriteResult(folder, reference + delay, speech.count, speech.rate);

  free(result);
  free(reference);
  free(signal.integers);
  free(signal.floats);
  free(taps.taps);
  free(speech.samples);
  return EXIT_SUCCESS;
}
