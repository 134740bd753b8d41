/**
 * @file orbs90lgc.h
 * @brief orbs90lgc: signal-processing primitives for x86. Include this; it brings every family.
 */
#ifndef ORBS90LGC_H
#define ORBS90LGC_H

#include "orbs90lgc/companding.h"
#include "orbs90lgc/fft.h"
#include "orbs90lgc/fir.h"
#include "orbs90lgc/fir_direct.h"
#include "orbs90lgc/fir_integer.h"
#include "orbs90lgc/fir_lms.h"
#include "orbs90lgc/fir_state.h"
#include "orbs90lgc/fm.h"
#include "orbs90lgc/frame.h"
#include "orbs90lgc/goertzel.h"
#include "orbs90lgc/iir.h"
#include "orbs90lgc/iir_direct.h"
#include "orbs90lgc/ramp.h"
#include "orbs90lgc/random.h"
#include "orbs90lgc/spectrum.h"
#include "orbs90lgc/status.h"
#include "orbs90lgc/tone.h"
#include "orbs90lgc/triangle.h"
#include "orbs90lgc/types.h"
#include "orbs90lgc/viterbi.h"
#include "orbs90lgc/window.h"

#endif
