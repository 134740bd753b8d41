/*
 * Finds dual-tone multi-frequency digits (ITU-T Recommendation Q.23) in a stream of samples.
 *
 * Frames of 24 ms under a Hann window, 4 ms apart, are measured by Goertzel at the eight nominal frequencies.
 * From frame to frame the phase of a tone advances by its true frequency: that gives the deviation, and a
 * second measurement at the true frequencies gives the levels. A frame holds a digit when
 *   - each tone has at least -36 dBm0;
 *   - the high tone is at most 5.5 dB above and 9.5 dB below the low one;
 *   - each tone is 6 dB above the other three of its group;
 *   - both are within 2.5 % of their nominal frequencies;
 *   - both together have at least 75 % of all power.
 * Six such frames in a row make a digit, which is at least 30 ms of tone: Recommendation Q.24 has receivers
 * that accept 40 ms and reject 20 to 24 ms, accept 1.5 to 1.8 % and reject 3 to 3.5 % of deviation, and
 * accept a high tone 4 dB above to 8 dB below the low one. Interruptions of up to 15 ms do not end a digit.
 */
#ifndef EXAMPLES_DTMF_H
#define EXAMPLES_DTMF_H

#include <orbs90lgc.h>

enum { kLow, kHigh, kGroups };

/* Two tones at one moment. */
typedef struct {
  char symbol;               /* 0 to 9, A to D, * or #; '\0' for none */
  double frequency[kGroups]; /* Hz, as measured */
  double power[kGroups];     /* relative to a sine of full scale */
} TonePair;

typedef struct {
  TonePair tones; /* where they are strongest */
  double start;   /* seconds from the start of the stream */
  double end;
} Digit;

typedef struct DigitFinder DigitFinder;

/* The rate must be 8000 samples a second or more. */
DigitFinder* MakeDigitFinder(int rate);
void FreeDigitFinder(DigitFinder* finder);

/* The stream, in pieces of any length, and its end. */
void FeedDigitFinder(DigitFinder* finder, const Orb32f* samples, Orb32s count);
void FinishDigitFinder(DigitFinder* finder);

/* The digits that have ended so far; valid until the finder is fed again. */
const Digit* FoundDigits(const DigitFinder* finder, int* count);

/* The nominal frequency of the symbol in one group. */
double NominalFrequency(char symbol, int group);

/* The power of a sine in dBm0. G.711 puts a sine of full scale at +3.14 dBm0 (A-law; mu-law: +3.17). */
double LevelOf(double power);

#endif
