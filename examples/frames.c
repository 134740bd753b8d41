#include "frames.h"

#include <stdlib.h>
#include <string.h>

#include "failure.h"

Framer MakeFramer(Orb32s length, Orb32s hop) {
  const Framer framer = {Allocate((size_t)length, sizeof(Orb32f)), length / 2, length, hop, -(length / 2)};
  return framer;
}

void FreeFramer(Framer* framer) { free(framer->samples); }

void FeedFrames(Framer* f, const Orb32f* samples, Orb32s count, FrameTaker take, void* taker) {
  while (count > 0) {
    const Orb32s room = f->length - f->filled;
    const Orb32s taken = count < room ? count : room;
    memcpy(f->samples + f->filled, samples, (size_t)taken * sizeof *samples);
    f->filled += taken;
    samples += taken;
    count -= taken;
    if (f->filled < f->length) break;
    take(taker, f->samples, f->start);
    f->filled -= f->hop;
    f->start += f->hop;
    memmove(f->samples, f->samples + f->hop, (size_t)f->filled * sizeof *f->samples);
  }
}

void FinishFrames(Framer* f, FrameTaker take, void* taker) {
  static const Orb32f kZeros[256];
  for (Orb32s left = f->length / 2; left > 0;) {
    const Orb32s count = left < 256 ? left : 256;
    FeedFrames(f, kZeros, count, take, taker);
    left -= count;
  }
}
