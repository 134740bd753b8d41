/* Speech from and to audio files, by libsndfile. Full scale of float samples is 1.0. */
#ifndef EXAMPLES_SPEECH_H
#define EXAMPLES_SPEECH_H

#include <orbs90lgc.h>
#include <sndfile.h>

/* An audio file that is read block by block. */
typedef struct {
  SNDFILE* file;
  const char* path;
  Orb64s frames; /* as the file tells: a damaged one may hold fewer */
  int rate;      /* frames a second */
  int channels;
  int encoding; /* SF_FORMAT_PCM_16, SF_FORMAT_ALAW, ... */
} Recording;

/* Opens any file that libsndfile knows and that holds samples. */
Recording OpenRecording(const char* path);

/*
 * Reads up to count frames; channel c of them goes to samples[c], or nowhere if that is null. Returns how
 * many there were, 0 at the end. A-law and mu-law are expanded by this library, all else by libsndfile.
 */
Orb32s ReadFrames(const Recording* recording, Orb32f* const* samples, Orb32s count);

void CloseRecording(const Recording* recording);

typedef struct {
  Orb32f* samples; /* the first channel */
  Orb32s count;
  int rate;     /* samples a second */
  int channels; /* in the file */
} Speech;

/* Reads all of a recording. The caller frees the samples. */
Speech ReadSpeech(const char* path);

/* To 16-bit samples, saturated; ties go away from zero, as the library's encoders of float samples round. */
void ToIntegers(const Orb32f* samples, Orb16s* integers, Orb32s count);

/* Writes 16-bit samples into a WAV file of one channel. */
void WriteSpeech(const char* path, const Orb16s* samples, Orb32s count, int rate);

/* Writes codes as they are into a WAV file of one channel; encoding is SF_FORMAT_ALAW or SF_FORMAT_ULAW. */
void WriteCodes(const char* path, int encoding, const Orb8u* codes, Orb32s count, int rate);

/* Reads a coded file as a player does, decoded by libsndfile; returns how many samples equal the expected
 * ones. */
Orb32s CountEqualWhenPlayed(const char* path, const Orb16s* expected, Orb32s count);

#endif
