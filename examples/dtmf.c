#include "dtmf.h"

#include <math.h>
#include <stdbool.h>
#include <stdlib.h>
#include <string.h>

#include "failure.h"
#include "frames.h"

enum {
  kTones = 4,        /* in each group */
  kHistory = 16,     /* frames remembered, to find where a digit began */
  kHitsNeeded = 6,   /* in a row, to believe in a digit */
  kMissesAllowed = 6 /* in a row, before a digit has ended */
};
static const double kFrameSeconds = 0.024;
static const double kHopSeconds = 0.004;

/* The decision rule, as dtmf.h tells it; ratios of power. */
static const double kMinPower = 1.22e-4; /* -36 dBm0 */
static const double kMaxHighOverLow = 3.55;
static const double kMaxLowOverHigh = 8.91;
static const double kMinOverOthers = 3.98;
static const double kMaxDeviation = 0.025;
static const double kMinShare = 0.75;
static const double kMaxDrift = 0.007;

static const double kPi = 3.14159265358979323846;
static const Orb32f kNominal[kGroups][kTones] = {{697, 770, 852, 941}, {1209, 1336, 1477, 1633}};
static const char kSymbols[kTones][kTones + 1] = {"123A", "456B", "789C", "*0#D"};

typedef struct {
  Orb32fc tone[kGroups][kTones]; /* the windowed frame's Fourier sums at the nominal frequencies */
} Measurement;

struct DigitFinder {
  double rate;
  Framer framer;
  Orb32f* window;
  Orb32f* windowed;
  double windowSum;
  double windowPower;
  Measurement history[kHistory]; /* frame i is at i % kHistory */
  Orb64s frames;

  TonePair run; /* the strongest of the hits of one symbol up to now, without a miss */
  int runLength;
  bool isOpen; /* a digit is going on: */
  Digit open;
  double openPower; /* the greatest PairPower() of its hits */
  int misses;

  Digit* digits;
  int count;
  int capacity;
};

static double PowerOf(Orb32fc sum) { return (double)sum.re * sum.re + (double)sum.im * sum.im; }

double LevelOf(double power) { return 10 * log10(power) + 3.14; }

/* Where a symbol stands on the keypad. */
static void Place(char symbol, int tone[kGroups]) {
  for (int low = 0; low < kTones; ++low) {
    const char* found = strchr(kSymbols[low], symbol);
    if (found == NULL) continue;
    tone[kLow] = low;
    tone[kHigh] = (int)(found - kSymbols[low]);
  }
}

double NominalFrequency(char symbol, int group) {
  int tone[kGroups] = {0};
  Place(symbol, tone);
  return kNominal[group][tone[group]];
}

DigitFinder* MakeDigitFinder(int rate) {
  DigitFinder* f = Allocate(1, sizeof *f);
  f->rate = rate;
  const Orb32s length = (Orb32s)lround(kFrameSeconds * rate);
  f->framer = MakeFramer(length, (Orb32s)lround(kHopSeconds * rate));
  f->window = Allocate((size_t)length, sizeof *f->window);
  f->windowed = Allocate((size_t)length, sizeof *f->windowed);
  for (Orb32s i = 0; i < length; ++i) {
    f->window[i] = (Orb32f)(0.5 - 0.5 * cos(2 * kPi * (i + 0.5) / length));
    f->windowSum += f->window[i];
    f->windowPower += f->window[i] * f->window[i];
  }
  return f;
}

void FreeDigitFinder(DigitFinder* f) {
  FreeFramer(&f->framer);
  free(f->window);
  free(f->windowed);
  free(f->digits);
  free(f);
}

/* The window takes off the edges; a constant, which some equipment adds to all samples, goes too. */
static void Window(DigitFinder* f, const Orb32f* frame) {
  double sum = 0;
  for (Orb32s i = 0; i < f->framer.length; ++i) sum += f->window[i] * frame[i];
  const Orb32f constant = (Orb32f)(sum / f->windowSum);
  for (Orb32s i = 0; i < f->framer.length; ++i) f->windowed[i] = f->window[i] * (frame[i] - constant);
}

/* The share of the frame's power that one tone of this power has is power / TotalPower(). */
static double TotalPower(const DigitFinder* f) {
  double sum = 0;
  for (Orb32s i = 0; i < f->framer.length; ++i) sum += (double)f->windowed[i] * f->windowed[i];
  return 2 * sum / f->windowPower; /* a sine of full scale has the mean square 1/2 */
}

static void GoertzelPair(const DigitFinder* f, const double frequency[2], Orb32fc result[2]) {
  const Orb32f relative[2] = {(Orb32f)(frequency[0] / f->rate), (Orb32f)(frequency[1] / f->rate)};
  Check(legacy90orbsGoertzTwo_32f(f->windowed, f->framer.length, result, relative), "GoertzTwo_32f");
}

static const Measurement* MeasurementOf(const DigitFinder* f, Orb64s frame) {
  return &f->history[frame % kHistory];
}

static void Measure(DigitFinder* f) {
  Measurement* m = &f->history[f->frames % kHistory];
  for (int i = 0; i < kTones; ++i) {
    const double frequency[kGroups] = {kNominal[kLow][i], kNominal[kHigh][i]};
    Orb32fc sums[kGroups];
    GoertzelPair(f, frequency, sums);
    for (int group = 0; group < kGroups; ++group) m->tone[group][i] = sums[group];
  }
}

/* The strongest of four tones, or -1 if it is not far enough above the others. */
static int StrongestTone(const Orb32fc tone[kTones]) {
  int strongest = 0;
  for (int i = 1; i < kTones; ++i) {
    if (PowerOf(tone[i]) > PowerOf(tone[strongest])) strongest = i;
  }
  for (int i = 0; i < kTones; ++i) {
    if (i != strongest && PowerOf(tone[strongest]) < kMinOverOthers * PowerOf(tone[i])) return -1;
  }
  return strongest;
}

/* The true frequency of a tone, from the phase by which it advanced over one hop. */
static double TrueFrequency(const DigitFinder* f, Orb32fc before, Orb32fc now, double nominal) {
  const double advance = atan2(now.im, now.re) - atan2(before.im, before.re);
  const double cycles = advance / (2 * kPi) - nominal * f->framer.hop / f->rate;
  return nominal + (cycles - floor(cycles + 0.5)) * f->rate / f->framer.hop;
}

/* What the newest frame holds by the decision rule. */
static TonePair Decide(const DigitFinder* f) {
  const TonePair none = {0};
  if (f->frames == 0) return none; /* no phase to compare with */
  const Measurement* now = MeasurementOf(f, f->frames);
  const Measurement* before = MeasurementOf(f, f->frames - 1);

  TonePair pair = {0};
  int tone[kGroups];
  for (int group = 0; group < kGroups; ++group) {
    const int strongest = StrongestTone(now->tone[group]);
    if (strongest < 0) return none;
    const double nominal = kNominal[group][strongest];
    pair.frequency[group] =
        TrueFrequency(f, before->tone[group][strongest], now->tone[group][strongest], nominal);
    if (!(fabs(pair.frequency[group] - nominal) <= kMaxDeviation * nominal)) return none;
    tone[group] = strongest;
  }

  Orb32fc sums[kGroups];
  GoertzelPair(f, pair.frequency, sums);
  for (int group = 0; group < kGroups; ++group) {
    pair.power[group] = PowerOf(sums[group]) * 4 / (f->windowSum * f->windowSum);
  }
  const double low = pair.power[kLow];
  const double high = pair.power[kHigh];
  /* Each condition is one that a NaN does not meet. */
  if (!(low >= kMinPower && high >= kMinPower)) return none;
  if (!(high <= kMaxHighOverLow * low && low <= kMaxLowOverHigh * high)) return none;
  if (!(low + high >= kMinShare * TotalPower(f))) return none;
  pair.symbol = kSymbols[tone[kLow]][tone[kHigh]];
  return pair;
}

static double SumOf(const TonePair* pair) { return pair->power[kLow] + pair->power[kHigh]; }

/* The power of a symbol's two tones in a frame, at their nominal frequencies. */
static double PairPower(const DigitFinder* f, Orb64s frame, char symbol) {
  int tone[kGroups] = {0};
  Place(symbol, tone);
  const Measurement* m = MeasurementOf(f, frame);
  return (PowerOf(m->tone[kLow][tone[kLow]]) + PowerOf(m->tone[kHigh][tone[kHigh]])) * 4 /
         (f->windowSum * f->windowSum);
}

/*
 * A frame whose middle lies on the edge of a tone sees half its amplitude. In a digit are thus the frames
 * with a quarter of its power.
 */
static bool IsInDigit(const DigitFinder* f, Orb64s frame) {
  return PairPower(f, frame, f->open.tones.symbol) >= f->openPower / 4;
}

/* The time of the middle of a frame, which the framer has put at a multiple of the hop. */
static double TimeOf(const DigitFinder* f, double frame) { return frame * f->framer.hop / f->rate; }

static void CloseDigit(DigitFinder* f) {
  if (f->count == f->capacity) {
    f->capacity = 2 * f->capacity + 64;
    f->digits = realloc(f->digits, (size_t)f->capacity * sizeof *f->digits);
    if (f->digits == NULL) Fail("out of memory for %d digits", f->capacity);
  }
  f->digits[f->count++] = f->open;
  f->isOpen = false;
}

static void OpenDigit(DigitFinder* f) {
  f->isOpen = true;
  f->misses = 0;
  f->open.tones = f->run;
  f->openPower = PairPower(f, f->frames, f->run.symbol);
  Orb64s first = f->frames;
  while (first > 0 && f->frames - first < kHistory - 1 && IsInDigit(f, first - 1)) --first;
  f->open.start = fmax(TimeOf(f, (double)first - 0.5), 0);
}

/* Whether two hits can be of one digit: the same symbol, and no voice that only passes through its tones. */
static bool IsSame(const TonePair* a, const TonePair* b) {
  if (a->symbol == '\0' || a->symbol != b->symbol) return false;
  for (int group = 0; group < kGroups; ++group) {
    if (fabs(a->frequency[group] - b->frequency[group]) > kMaxDrift * a->frequency[group]) return false;
  }
  return true;
}

static void TakeFrame(void* finder, const Orb32f* frame, Orb64s start) {
  DigitFinder* f = finder;
  (void)start;
  Window(f, frame);
  Measure(f);
  const TonePair hit = Decide(f);

  if (!IsSame(&hit, &f->run)) f->runLength = 0;
  if (f->runLength++ == 0 || SumOf(&hit) > SumOf(&f->run)) f->run = hit;

  const bool isSame = f->isOpen && hit.symbol == f->open.tones.symbol;
  if (isSame) {
    f->misses = 0;
    f->openPower = fmax(f->openPower, PairPower(f, f->frames, hit.symbol));
    if (SumOf(&hit) > SumOf(&f->open.tones)) f->open.tones = hit;
  } else {
    const bool isNew = hit.symbol != '\0' && f->runLength >= kHitsNeeded;
    if (f->isOpen && (isNew || ++f->misses > kMissesAllowed)) CloseDigit(f);
    if (isNew) OpenDigit(f);
  }
  if (f->isOpen && IsInDigit(f, f->frames)) f->open.end = TimeOf(f, (double)f->frames + 0.5);
  ++f->frames;
}

void FeedDigitFinder(DigitFinder* f, const Orb32f* samples, Orb32s count) {
  FeedFrames(&f->framer, samples, count, TakeFrame, f);
}

void FinishDigitFinder(DigitFinder* f) {
  FinishFrames(&f->framer, TakeFrame, f);
  if (f->isOpen) CloseDigit(f);
}

const Digit* FoundDigits(const DigitFinder* f, int* count) {
  *count = f->count;
  return f->digits;
}
