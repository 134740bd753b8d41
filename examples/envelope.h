/* The outline of a signal for drawing: what the samples of each column of a picture come to. */
#ifndef EXAMPLES_ENVELOPE_H
#define EXAMPLES_ENVELOPE_H

#include <orbs90lgc.h>

typedef struct {
  Orb32f least;
  Orb32f greatest;
  double squares; /* their sum */
  Orb64s count;
} EnvelopeColumn;

typedef struct {
  EnvelopeColumn* column;
  int columns;
  Orb64s frames; /* the length of the signal */
  Orb64s done;
} Envelope;

Envelope MakeEnvelope(int columns, Orb64s frames);
void FreeEnvelope(Envelope* envelope);

/* The signal, in pieces of any length; what exceeds the number of frames is left out. */
void FeedEnvelope(Envelope* envelope, const Orb32f* samples, Orb32s count);

#endif
