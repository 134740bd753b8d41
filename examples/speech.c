#include "speech.h"

#include <sndfile.h>
#include <stdlib.h>

#include "failure.h"

enum { kBlock = 4096 };

static SNDFILE* Open(const char* path, int mode, SF_INFO* info) {
  SNDFILE* file = sf_open(path, mode, info);
  if (file == NULL) {
    Fail("cannot %s '%s': %s", mode == SFM_READ ? "read" : "write", path, sf_strerror(NULL));
  }
  return file;
}

Speech ReadSpeech(const char* path) {
  SF_INFO info = {0};
  SNDFILE* file = Open(path, SFM_READ, &info);
  if (info.frames < 1) Fail("'%s' holds no samples", path);
  if (info.frames > INT32_MAX) Fail("'%s' has more than %ld samples", path, (long)INT32_MAX);

  Speech speech = {Allocate((size_t)info.frames, sizeof(Orb32f)), 0, info.samplerate, info.channels};
  const size_t channels = (size_t)info.channels;
  Orb32f* block = Allocate(kBlock * channels, sizeof *block);
  sf_count_t frames;
  /* A damaged file may hold more or fewer frames than its header says. */
  while ((frames = sf_readf_float(file, block, kBlock)) > 0) {
    for (sf_count_t i = 0; i < frames && speech.count < info.frames; ++i) {
      speech.samples[speech.count++] = block[(size_t)i * channels];
    }
  }
  if (sf_error(file) != SF_ERR_NO_ERROR) Fail("cannot read '%s': %s", path, sf_strerror(file));
  if (speech.count < 1) Fail("'%s' holds no samples", path);
  free(block);
  sf_close(file);
  return speech;
}

void WriteCodes(const char* path, int encoding, const Orb8u* codes, Orb32s count, int rate) {
  SF_INFO info = {0};
  info.samplerate = rate;
  info.channels = 1;
  info.format = SF_FORMAT_WAV | encoding;
  SNDFILE* file = Open(path, SFM_WRITE, &info);
  if (sf_write_raw(file, codes, count) != count)
    Fail("cannot write all of '%s': %s", path, sf_strerror(file));
  if (sf_close(file) != 0) Fail("cannot close '%s'", path);
}

Orb32s CountEqualWhenPlayed(const char* path, const Orb16s* expected, Orb32s count) {
  SF_INFO info = {0};
  SNDFILE* file = Open(path, SFM_READ, &info);
  Orb16s* played = Allocate((size_t)count, sizeof *played);
  const sf_count_t read = sf_read_short(file, played, count);
  Orb32s equal = 0;
  for (sf_count_t i = 0; i < read; ++i) equal += played[i] == expected[i];
  free(played);
  sf_close(file);
  return equal;
}
