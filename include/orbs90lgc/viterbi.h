/**
 * @file viterbi.h
 * @brief The steps of a soft Viterbi decoder for four-dimensional trellis codes on a square constellation.
 *
 * A trellis step covers two received two-dimensional points:
 *  1. legacy90orbsGetVarPointDV_16sc() on each of them: per subset of the constellation, the nearest point
 * and its distance;
 *  2. legacy90orbsBuildSymblTableDV4D_16sc(): the distances of both points become the metrics of the
 * branches;
 *  3. legacy90orbsCalcStatesDV_16sc(): add, compare and select over all states; survivors are noted;
 *  4. legacy90orbsUpdatePathMetricsDV_16u(): the path metrics are normalised, and the best state is told.
 *
 * The trace-back over the survivors is the caller's, and so are all tables: nothing is kept between calls.
 * The code has 16, 32 or 64 states; `stateCount` is compared with 16 and 32 only, and every other number
 * takes the form for 64 states. What each number of states means:
 *
 * | stateCount                           | 16 | 32 | others |
 * |--------------------------------------|----|----|--------|
 * | subsets (labels), entries per point  | 4  | 8  | 8      |
 * | entries of the symbol table          | 8  | 16 | 32     |
 * | branches from a state                | 4  | 8  | 16     |
 *
 * Lattice: the coordinates of constellation points are odd multiples of 128, so that neighbours are 256
 * apart. Labels repeat with period 4 in each direction: the column of a coordinate L is ((L - 128) / 256 + 2)
 * mod 4, the row likewise from the imaginary part.
 *
 * Of the codes: L.-F. Wei, "Trellis-Coded Modulation with Multidimensional Constellations", IEEE Transactions
 * on Information Theory 33 (1987), 483-501; of the decoder: G. D. Forney, "The Viterbi Algorithm",
 * Proceedings of the IEEE 61 (1973), 268-278.
 *
 * All variants give the same results, but for a metric of 32768 and above in the form for 16 states of
 * legacy90orbsCalcStatesDV_16sc(). The four functions return ::StatusNullPointer if a pointer is null, with
 * nothing written, and ::StatusOk.
 */
#ifndef ORBS90LGC_VITERBI_H
#define ORBS90LGC_VITERBI_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * The nearest point of each subset to a received point.
 *
 * With the base point the lattice point at or below the received one in both coordinates, the candidates are
 * the four corners of its lattice cell and, with more than 16 states, eight points around them, two at a time
 * for one label:
 *
 * | label at     | code | offset | or, if at least as near: code | offset  |
 * |--------------|------|--------|-------------------------------|---------|
 * | (c, r)       | 0    | (0, 0) |                               |         |
 * | (c + 1, r)   | 1    | (1, 0) |                               |         |
 * | (c + 1, r+1) | 2    | (1, 1) |                               |         |
 * | (c, r + 1)   | 3    | (0, 1) |                               |         |
 * | (c, r + 2)   | 4    | (0, 2) | 8                             | (2, 0)  |
 * | (c + 1, r+2) | 5    | (1, 2) | 9                             | (-1, 0) |
 * | (c + 1, r+3) | 6    | (2, 1) | 10                            | (0, -1) |
 * | (c, r + 3)   | 7    | (1, -1)| 11                            | (-1, 1) |
 *
 * Labels are looked up at (column, row), modulo 4, from the column c and the row r of the base point; offsets
 * are in lattice steps (x, y) from it. Where a label is met more than once, the last line stays.
 *
 * @param src         received point
 * @param base        receives the base point
 * @param variants    receives an entry for each label: bits 0-15 the squared distance in units of 16 (the
 * square on each axis shifted right by 4), bits 16-23 the code; other entries stay
 * @param subsetMap   16 labels, by 4 * row + column; their low 2 bits count with 16 states, else the low 3
 * @param stateCount  number of states
 */
OrbStatus legacy90orbsGetVarPointDV_16sc(const Orb16sc* src, Orb16sc* base, Orb32u* variants,
                                         const Orb8u* subsetMap, Orb32s stateCount);

/**
 * The metrics of four-dimensional symbols: of the pairs of labels that make a symbol, the nearest.
 *
 * A pair (i, j) has the sum of the distances of label i at the first point and j at the second; the first of
 * equal pairs wins. With x the index mask, k the index of the entry, and k' = k XOR x, or
 * (k XOR x) + 2 (k AND 8) with 32 states:
 *
 * | states | pairs in order                                                                  |
 * |--------|---------------------------------------------------------------------------------|
 * | 16     | (a, b), ((a + 2) mod 4, (b + 2) mod 4)                                          |
 * | 32     | (p, q), ((p + 4) mod 8, q + 4), (a, b), ((a + 4) mod 8, b + 4)                  |
 * | others | (a, b), ((a + 4) mod 8, b + 4)                                                  |
 *
 * where a = k' / 4, b = (k' + a) mod 4, m = k' XOR 8, p = m / 4, q = (m + p) mod 4.
 *
 * @param variants     16 entries: the table of the first point from entry 0 on, that of the second from entry
 * 8 on, also with 16 states
 * @param symbolTable  receives the entries: `re` has the codes, of the first point in its low byte and of the
 *                     second in its high byte, `im` the sum, 16 bits of it
 * @param stateCount   number of states
 * @param indexMask    x: below 8, 16 or 32; further bits are ignored
 */
OrbStatus legacy90orbsBuildSymblTableDV4D_16sc(const Orb32u* variants, Orb16sc* symbolTable,
                                               Orb32s stateCount, Orb32s indexMask);

/**
 * Add, compare and select. For each state s and in it each branch b, in ascending order: the branch uses
 * entry e = (s AND 1) + 2b of the symbol table and leads to the state t = nextStates[s * B + b], B being the
 * number of branches; the path through it has the metric m = oldMetrics[s] + the `im` of entry e, taken as
 * signed. If m is below newMetrics[t], it is stored there in 16 bits, and the row's entry t becomes the `re`
 * of entry e in bits 0-15 and s in bits 16-31. So the first of equal paths survives, and a state that no path
 * improves keeps its metric and its entry.
 *
 * With 16 states the variants other than `px` take the `im` as unsigned; what
 * legacy90orbsBuildSymblTableDV4D_16sc() makes of distances of legacy90orbsGetVarPointDV_16sc() stays below
 * 32768 there.
 *
 * @param oldMetrics   metrics of the paths so far, one for each state
 * @param nextStates   the numbers of the next states, state after state, B each
 * @param newMetrics   metrics of the paths that survive; 65535 where there is none yet
 * @param symbolTable  entries of legacy90orbsBuildSymblTableDV4D_16sc()
 * @param survivors    entries of the survivors of all steps
 * @param stateCount   number of states; below 1 nothing is done
 * @param rowIndex     index of the first entry of this step's row in `survivors`
 */
OrbStatus legacy90orbsCalcStatesDV_16sc(const Orb16u* oldMetrics, const Orb8u* nextStates, Orb16u* newMetrics,
                                        const Orb16sc* symbolTable, Orb32u* survivors, Orb32s stateCount,
                                        Orb32s rowIndex);

/**
 * Normalises the path metrics for the next step: oldMetrics[s] = newMetrics[s] - least, newMetrics[s] =
 * 65535.
 *
 * @param newMetrics   metrics of the surviving paths
 * @param leastMetric  receives the least of them
 * @param bestState    receives the number of the first state that has it, 8 bits of it
 * @param oldMetrics   receives the normalised metrics
 * @param stateCount   number of metrics; below 1, `leastMetric` becomes 65535 and `bestState` 0
 */
OrbStatus legacy90orbsUpdatePathMetricsDV_16u(Orb16u* newMetrics, Orb16u* leastMetric, Orb8u* bestState,
                                              Orb16u* oldMetrics, Orb32s stateCount);

#ifdef __cplusplus
}
#endif

#endif
