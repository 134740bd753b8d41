#include "speech.h"

#include <math.h>
#include <stdlib.h>

#include "failure.h"

enum { kMaxChannels = 1024 };

static SNDFILE* Open(const char* path, int mode, SF_INFO* info) {
  SNDFILE* file = sf_open(path, mode, info);
  if (file == NULL) {
    Fail("cannot %s '%s': %s", mode == SFM_READ ? "read" : "write", path, sf_strerror(NULL));
  }
  return file;
}

Recording OpenRecording(const char* path) {
  SF_INFO info = {0};
  SNDFILE* file = Open(path, SFM_READ, &info);
  if (info.frames < 1) Fail("'%s' holds no samples", path);
  if (info.channels > kMaxChannels) Fail("'%s' has more than %d channels", path, kMaxChannels);
  const Recording recording = {
      file, path, info.frames, info.samplerate, info.channels, info.format & SF_FORMAT_SUBMASK};
  return recording;
}

void CloseRecording(const Recording* recording) { sf_close(recording->file); }

/* Samples of a code of 8 bits: the bytes of the file, expanded here. */
static Orb32s ReadCodes(const Recording* recording, Orb32f* samples, Orb32s count,
                        OrbStatus (*expand)(const Orb8u*, Orb32f*, Orb32s)) {
  Orb8u codes[kMaxChannels];
  Orb32s done = 0;
  while (done < count) {
    const Orb32s whole = kMaxChannels / recording->channels * recording->channels;
    const Orb32s wanted = count - done < whole ? count - done : whole;
    const Orb32s read = (Orb32s)sf_read_raw(recording->file, codes, wanted);
    if (read < 1) break;
    Check(expand(codes, samples + done, read), "expansion");
    done += read;
  }
  return done;
}

static Orb32s ReadInterleaved(const Recording* recording, Orb32f* samples, Orb32s count) {
  switch (recording->encoding) {
    case SF_FORMAT_ALAW:
      return ReadCodes(recording, samples, count, legacy90orbsALawToLin_8u32f);
    case SF_FORMAT_ULAW:
      return ReadCodes(recording, samples, count, legacy90orbsMuLawToLin_8u32f);
    default:
      return (Orb32s)sf_read_float(recording->file, samples, count);
  }
}

Orb32s ReadFrames(const Recording* recording, Orb32f* const* samples, Orb32s count) {
  enum { kInterleaved = 4 * kMaxChannels };
  Orb32f interleaved[kInterleaved];
  const Orb32s channels = recording->channels;
  const Orb32s capacity = kInterleaved / channels;
  Orb32s done = 0;
  while (done < count) {
    const Orb32s wanted = count - done < capacity ? count - done : capacity;
    const Orb32s read = ReadInterleaved(recording, interleaved, wanted * channels) / channels;
    if (read < 1) break;
    for (Orb32s channel = 0; channel < channels; ++channel) {
      if (samples[channel] == NULL) continue;
      for (Orb32s i = 0; i < read; ++i) samples[channel][done + i] = interleaved[i * channels + channel];
    }
    done += read;
  }
  if (sf_error(recording->file) != SF_ERR_NO_ERROR) {
    Fail("cannot read '%s': %s", recording->path, sf_strerror(recording->file));
  }
  return done;
}

Speech ReadSpeech(const char* path) {
  const Recording recording = OpenRecording(path);
  if (recording.frames > INT32_MAX) Fail("'%s' has more than %ld samples", path, (long)INT32_MAX);

  const Orb32s frames = (Orb32s)recording.frames;
  Speech speech = {Allocate((size_t)frames, sizeof(Orb32f)), 0, recording.rate, recording.channels};
  Orb32f* first[kMaxChannels] = {speech.samples};
  speech.count = ReadFrames(&recording, first, frames);
  if (speech.count < 1) Fail("'%s' holds no samples", path);
  CloseRecording(&recording);
  return speech;
}

static Orb16s ToInteger(Orb32f sample) {
  const Orb32f scaled = roundf(sample * 32768.0f);
  if (scaled >= 32767.0f) return 32767;
  return (Orb16s)(scaled > -32768.0f ? scaled : -32768.0f); /* NaN, too, becomes -32768 */
}

void ToIntegers(const Orb32f* samples, Orb16s* integers, Orb32s count) {
  for (Orb32s i = 0; i < count; ++i) integers[i] = ToInteger(samples[i]);
}

static SNDFILE* Create(const char* path, int encoding, int rate) {
  SF_INFO info = {0};
  info.samplerate = rate;
  info.channels = 1;
  info.format = SF_FORMAT_WAV | encoding;
  return Open(path, SFM_WRITE, &info);
}

/* Written is what a write of count items told. */
static void Finish(SNDFILE* file, const char* path, sf_count_t written, Orb32s count) {
  if (written != count) Fail("cannot write all of '%s': %s", path, sf_strerror(file));
  if (sf_close(file) != 0) Fail("cannot close '%s'", path);
}

void WriteSpeech(const char* path, const Orb16s* samples, Orb32s count, int rate) {
  SNDFILE* file = Create(path, SF_FORMAT_PCM_16, rate);
  Finish(file, path, sf_write_short(file, samples, count), count);
}

void WriteCodes(const char* path, int encoding, const Orb8u* codes, Orb32s count, int rate) {
  SNDFILE* file = Create(path, encoding, rate);
  Finish(file, path, sf_write_raw(file, codes, count), count);
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
