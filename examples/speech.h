/* Speech from and to audio files, by libsndfile. */
#ifndef EXAMPLES_SPEECH_H
#define EXAMPLES_SPEECH_H

#include <orbs90lgc.h>

typedef struct {
  Orb32f* samples; /* the first channel; full scale is 1.0 */
  Orb32s count;
  int rate;     /* samples a second */
  int channels; /* in the file */
} Speech;

/* Reads any file that libsndfile knows. The caller frees the samples. */
Speech ReadSpeech(const char* path);

/* Writes codes as they are into a WAV file of one channel; encoding is SF_FORMAT_ALAW or SF_FORMAT_ULAW. */
void WriteCodes(const char* path, int encoding, const Orb8u* codes, Orb32s count, int rate);

/* Reads a coded file as a player does, decoded by libsndfile; returns how many samples equal the expected
 * ones. */
Orb32s CountEqualWhenPlayed(const char* path, const Orb16s* expected, Orb32s count);

#endif
