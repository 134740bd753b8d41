/* Cuts a stream of samples into frames of one length that overlap. */
#ifndef EXAMPLES_FRAMES_H
#define EXAMPLES_FRAMES_H

#include <orbs90lgc.h>

typedef struct {
  Orb32f* samples; /* the frame that is being filled */
  Orb32s filled;
  Orb32s length;
  Orb32s hop;   /* from frame to frame, at most length */
  Orb64s start; /* where in the stream samples[0] is; below 0 in the zeros before it */
} Framer;

/* What is done with each frame. */
typedef void (*FrameTaker)(void* taker, const Orb32f* frame, Orb64s start);

/* The first frame is centred on the first sample of the stream. */
Framer MakeFramer(Orb32s length, Orb32s hop);
void FreeFramer(Framer* framer);

void FeedFrames(Framer* framer, const Orb32f* samples, Orb32s count, FrameTaker take, void* taker);

/* Half a frame of zeros behind the stream, so that its end comes to the middle of a frame, too. */
void FinishFrames(Framer* framer, FrameTaker take, void* taker);

#endif
