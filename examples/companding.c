/*
 * Codes a recording in A-law and mu-law and back, and tells what the laws cost.
 *
 *   companding RECORDING [FOLDER]
 *
 * Prints which variant of the library runs and why, and the signal-to-noise ratio of each law by level of the
 * speech. Writes into the folder (by default the current one, which must exist) alaw.wav and mulaw.wav, which
 * any player opens, and the data of companding.gnuplot, which draws the errors.
 *
 * With the library and libsndfile installed:
 *
 *   cc -o companding companding.c failure.c levels.c speech.c usage.c \
 *     $(pkg-config --cflags --libs orbs90lgc sndfile) -lm
 */
#include <orbs90lgc.h>
#include <sndfile.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "failure.h"
#include "levels.h"
#include "speech.h"
#include "usage.h"

typedef struct {
  const char* name;
  const char* fileName;
  int encoding;
  OrbStatus (*encode)(const Orb16s* src, Orb8u* dst, Orb32s len);
  OrbStatus (*encodeFloat)(const Orb32f* src, Orb8u* dst, Orb32s len);
  OrbStatus (*decode)(const Orb8u* src, Orb16s* dst, Orb32s len);
} Law;

static const Law kLaw[kLaws] = {
    {"A-law", "alaw.wav", SF_FORMAT_ALAW, legacy90orbsLinToALaw_16s8u, legacy90orbsLinToALaw_32f8u,
     legacy90orbsALawToLin_8u16s},
    {"mu-law", "mulaw.wav", SF_FORMAT_ULAW, legacy90orbsLinToMuLaw_16s8u, legacy90orbsLinToMuLaw_32f8u,
     legacy90orbsMuLawToLin_8u16s},
};

/* What a processor must have for each variant to be chosen; the most demanding that it satisfies is. */
static const char* ReasonFor(const char* variant) {
  static const char* const kReasons[][2] = {
      {"px", "no SSE2"},
      {"w7", "SSE2"},
      {"v8", "SSSE3"},
      {"s8", "SSSE3 and MOVBE"},
      {"p8", "SSE4.1"},
      {"g9", "AVX, enabled by the system"},
      {"h9", "AVX2, FMA, BMI1 and BMI2, and AVX enabled by the system"},
  };
  for (size_t i = 0; i < sizeof kReasons / sizeof *kReasons; ++i) {
    if (strcmp(kReasons[i][0], variant) == 0) return kReasons[i][1];
  }
  return "features unknown to this program";
}

static void PrintVariant(void) {
  const OrbStatus status = legacy90orbsInit();
  const OrbLibraryVersion* version = legacy90orbsGetLibVersion();
  printf("Variant:   %s, version %s\n", version->name, version->version);
  printf("           chosen by the features of this processor: %s\n", ReasonFor(version->targetCpu));
  if (status == StatusNoCpuSupport) {
    printf("           (status %d, a note: the vendor is not the expected one; all works the same)\n",
           (int)status);
  }
}

/* Codes the speech, keeps the codes as a WAV file and returns what its listener hears. */
static Orb16s* CodeAndDecode(const Law* law, const Speech* speech, const Orb16s* integers,
                             const char* folder) {
  const Orb32s count = speech->count;
  Orb8u* codes = Allocate((size_t)count, sizeof *codes);
  Orb8u* floatCodes = Allocate((size_t)count, sizeof *floatCodes);
  Orb16s* decoded = Allocate((size_t)count, sizeof *decoded);
  Check(law->encode(integers, codes, count), "encoding of 16-bit samples");
  Check(law->encodeFloat(speech->samples, floatCodes, count), "encoding of float samples");
  Check(law->decode(codes, decoded, count), "decoding");

  char* path = PathOf(folder, law->fileName);
  WriteCodes(path, law->encoding, codes, count, speech->rate);
  const Orb32s playedEqual = CountEqualWhenPlayed(path, decoded, count);
  /* Not quite all need be: in mu-law a negative float sample that rounds to 0 keeps its sign. */
  Orb32s codesEqual = 0;
  for (Orb32s i = 0; i < count; ++i) codesEqual += codes[i] == floatCodes[i];

  printf("%-9s  %s\n", law->name, path);
  printf("           played by libsndfile, %ld of %ld samples equal ours\n", (long)playedEqual, (long)count);
  printf("           coded from float samples, %ld of %ld codes are the same\n", (long)codesEqual,
         (long)count);
  if (playedEqual != count) Fail("'%s' does not play as the library decodes it", path);

  free(path);
  free(floatCodes);
  free(codes);
  return decoded;
}

int main(int argc, char** argv) {
  ReadUsage(argc, argv, "companding RECORDING [FOLDER]",
            "Codes the recording in A-law and mu-law and back; writes alaw.wav, mulaw.wav and the data of a\n"
            "plot into the folder, by default the current one.");
  const char* folder = argc > 2 ? argv[2] : ".";

  const Speech speech = ReadSpeech(argv[1]);
  printf("Recording: %s\n           %.2f s at %d Hz", argv[1], (double)speech.count / speech.rate,
         speech.rate);
  if (speech.channels > 1) printf(", the first of %d channels", speech.channels);
  putchar('\n');
  PrintVariant();

  Orb16s* integers = Allocate((size_t)speech.count, sizeof *integers);
  ToIntegers(speech.samples, integers, speech.count);
  Orb16s* decoded[kLaws];
  const char* names[kLaws];
  for (int law = 0; law < kLaws; ++law) {
    decoded[law] = CodeAndDecode(&kLaw[law], &speech, integers, folder);
    names[law] = kLaw[law].name;
  }
  const Comparison comparison = {integers, {decoded[0], decoded[1]}, speech.count, speech.rate};
  ReportLevels(&comparison, names, folder);
  WriteWaveforms(&comparison, folder);

  for (int law = 0; law < kLaws; ++law) free(decoded[law]);
  free(integers);
  free(speech.samples);
  return EXIT_SUCCESS;
}
