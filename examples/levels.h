/* The signal-to-noise ratio of both laws, over the level of the speech. */
#ifndef EXAMPLES_LEVELS_H
#define EXAMPLES_LEVELS_H

#include <orbs90lgc.h>

enum { kLaws = 2 };

/* What was said, and what each law made of it. */
typedef struct {
  const Orb16s* original;
  const Orb16s* decoded[kLaws];
  Orb32s count;
  int rate;
} Comparison;

/*
 * Cuts the speech into segments of 20 ms, groups them by their level in steps of 6 dB and prints the ratio of
 * each group: the energy of its segments over the energy of their errors. Levels are RMS; 0 dBFS is 32768.
 * Leaves in the folder, for plotting:
 *   segments.tsv   level, ratio of each law: one line a segment
 *   groups.tsv     the same, one line a group
 */
void ReportLevels(const Comparison* comparison, const char* const lawNames[kLaws], const char* folder);

/*
 * Leaves in the folder waveforms.tsv, the course of speech and errors: time in seconds, then least and
 * greatest value of the speech and of each law's error, one line for each of at most 2000 equal stretches.
 */
void WriteWaveforms(const Comparison* comparison, const char* folder);

#endif
