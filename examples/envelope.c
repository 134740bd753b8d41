#include "envelope.h"

#include <stdlib.h>

#include "failure.h"

Envelope MakeEnvelope(int columns, Orb64s frames) {
  const Envelope envelope = {Allocate((size_t)columns, sizeof(EnvelopeColumn)), columns, frames, 0};
  return envelope;
}

void FreeEnvelope(Envelope* envelope) { free(envelope->column); }

void FeedEnvelope(Envelope* e, const Orb32f* samples, Orb32s count) {
  for (Orb32s i = 0; i < count && e->done < e->frames; ++i, ++e->done) {
    EnvelopeColumn* column = &e->column[e->done * e->columns / e->frames];
    const Orb32f sample = samples[i];
    if (column->count == 0 || sample < column->least) column->least = sample;
    if (column->count == 0 || sample > column->greatest) column->greatest = sample;
    column->squares += (double)sample * sample;
    ++column->count;
  }
}
