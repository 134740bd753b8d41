#include "levels.h"

#include <math.h>

#include "failure.h"

enum {
  kGroupWidth = 6, /* dB */
  kGroups = 16,    /* the quietest takes all that is below */
  kStretches = 2000
};

typedef struct {
  double speech;
  double error[kLaws];
  double samples;
  long segments;
} Energy;

static Energy Measure(const Comparison* c, Orb32s from, Orb32s to) {
  Energy energy = {0};
  for (Orb32s i = from; i < to; ++i) {
    energy.speech += (double)c->original[i] * c->original[i];
    for (int law = 0; law < kLaws; ++law) {
      const double error = (double)c->decoded[law][i] - c->original[i];
      energy.error[law] += error * error;
    }
  }
  energy.samples = to - from;
  energy.segments = 1;
  return energy;
}

static void Add(Energy* sum, const Energy* energy) {
  sum->speech += energy->speech;
  for (int law = 0; law < kLaws; ++law) sum->error[law] += energy->error[law];
  sum->samples += energy->samples;
  sum->segments += energy->segments;
}

static double Level(const Energy* e) { return 10 * log10(e->speech / e->samples) - 20 * log10(32768); }

/* Infinite when a law lost nothing. */
static double Ratio(const Energy* e, int law) { return 10 * log10(e->speech / e->error[law]); }

static int GroupOf(double level) {
  const int group = (int)floor(-level / kGroupWidth);
  return group < 0 ? 0 : group < kGroups ? group : kGroups - 1;
}

static void WriteRatios(FILE* file, const Energy* energy) {
  fprintf(file, "%.2f", Level(energy));
  for (int law = 0; law < kLaws; ++law) fprintf(file, "\t%.2f", Ratio(energy, law));
  fputc('\n', file);
}

static void PrintRatios(const char* level, const Energy* energy) {
  printf("  %-12s  %8ld", level, energy->segments);
  for (int law = 0; law < kLaws; ++law) printf("  %9.1f dB", Ratio(energy, law));
  putchar('\n');
}

void ReportLevels(const Comparison* c, const char* const lawNames[kLaws], const char* folder) {
  Energy groups[kGroups] = {{0}};
  Energy all = {0};
  long silent = 0;
  const Orb32s length = c->rate < 50 ? 1 : c->rate / 50; /* 20 ms */
  FILE* file = CreateText(folder, "segments.tsv");
  for (Orb32s from = 0; from < c->count;) {
    const Orb32s to = c->count - from < length ? c->count : from + length;
    const Energy segment = Measure(c, from, to);
    if (segment.speech > 0) {
      Add(&groups[GroupOf(Level(&segment))], &segment);
      Add(&all, &segment);
      WriteRatios(file, &segment);
    } else {
      ++silent; /* neither a level nor a ratio */
    }
    from = to;
  }
  FinishText(file, "segments.tsv");

  printf("\nSignal-to-noise ratio by level (RMS of segments of 20 ms; 0 dBFS is 32768)\n\n");
  printf("  %-12s  %8s", "level, dBFS", "segments");
  for (int law = 0; law < kLaws; ++law) printf("  %12s", lawNames[law]);
  putchar('\n');
  file = CreateText(folder, "groups.tsv");
  for (int group = 0; group < kGroups; ++group) {
    if (groups[group].segments == 0) continue;
    char range[32];
    const int top = -group * kGroupWidth;
    if (group < kGroups - 1) {
      snprintf(range, sizeof range, "%3d to %3d", top - kGroupWidth, top);
    } else {
      snprintf(range, sizeof range, "below %d", top);
    }
    PrintRatios(range, &groups[group]);
    WriteRatios(file, &groups[group]);
  }
  FinishText(file, "groups.tsv");
  if (all.segments > 0) PrintRatios("all", &all);
  if (silent > 0) printf("\n  Left out: segments of digital silence, %ld\n", silent);
}

static void WriteRange(FILE* file, const Orb16s* values, const Orb16s* subtrahend, Orb32s from, Orb32s to) {
  int least = INT32_MAX;
  int greatest = INT32_MIN;
  for (Orb32s i = from; i < to; ++i) {
    const int value = values[i] - (subtrahend != NULL ? subtrahend[i] : 0);
    if (value < least) least = value;
    if (value > greatest) greatest = value;
  }
  fprintf(file, "\t%d\t%d", least, greatest);
}

void WriteWaveforms(const Comparison* c, const char* folder) {
  FILE* file = CreateText(folder, "waveforms.tsv");
  const Orb32s stretches = c->count < kStretches ? c->count : kStretches;
  for (Orb32s i = 0; i < stretches; ++i) {
    const Orb32s from = (Orb32s)((Orb64s)c->count * i / stretches);
    const Orb32s to = (Orb32s)((Orb64s)c->count * (i + 1) / stretches);
    fprintf(file, "%.6f", (double)from / c->rate);
    WriteRange(file, c->original, NULL, from, to);
    for (int law = 0; law < kLaws; ++law) WriteRange(file, c->decoded[law], c->original, from, to);
    fputc('\n', file);
  }
  FinishText(file, "waveforms.tsv");
}
