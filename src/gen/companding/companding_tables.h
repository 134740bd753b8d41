// The G.711 laws as tables of 256 entries, indexed by the code in its wire form: the even-bit inversion of
// A-law and the complement of mu-law are inside.
#ifndef ORBS_GEN_COMPANDING_COMPANDING_TABLES_H
#define ORBS_GEN_COMPANDING_COMPANDING_TABLES_H

#include "core/variant.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT::gen {

template <class T>
struct CodeTable {
  T entries[256];
  constexpr T operator[](Orb8u code) const { return entries[code]; }
};

constexpr Orb16s DecodeALawCode(Orb8u code) {
  const int c = code ^ 0x55;
  const int mantissa = c & 15;
  const int exponent = c >> 4 & 7;
  const int magnitude = exponent == 0 ? 16 * mantissa + 8 : (16 * mantissa + 264) << (exponent - 1);
  return static_cast<Orb16s>((c & 0x80) != 0 ? magnitude : -magnitude);
}

constexpr Orb16s DecodeMuLawCode(Orb8u code) {
  const int c = ~code & 0xFF;
  const int magnitude = ((8 * (c & 15) + 132) << (c >> 4 & 7)) - 132;
  return static_cast<Orb16s>((c & 0x80) != 0 ? -magnitude : magnitude);
}

// Tables 3 and 4 of G.711, by the number of the positive decision interval, counted from 0 at the origin in
// both laws.
inline constexpr Orb8u kALawToMuLawIntervals[128] = {
    1,   3,   5,   7,   9,   11,  13,  15,  16,  17,  18,  19,  20,  21,  22,  23,  24,  25,  26,
    27,  28,  29,  30,  31,  32,  32,  33,  33,  34,  34,  35,  35,  36,  37,  38,  39,  40,  41,
    42,  43,  44,  45,  46,  47,  48,  48,  49,  49,  50,  51,  52,  53,  54,  55,  56,  57,  58,
    59,  60,  61,  62,  63,  64,  64,  65,  66,  67,  68,  69,  70,  71,  72,  73,  74,  75,  76,
    77,  78,  79,  80,  80,  81,  82,  83,  84,  85,  86,  87,  88,  89,  90,  91,  92,  93,  94,
    95,  96,  97,  98,  99,  100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113,
    114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 125, 126, 127};
inline constexpr Orb8u kMuLawToALawIntervals[128] = {
    0,   0,   1,   1,   2,   2,   3,   3,   4,   4,   5,   5,   6,   6,   7,   7,   8,   9,   10,
    11,  12,  13,  14,  15,  16,  17,  18,  19,  20,  21,  22,  23,  24,  26,  28,  30,  32,  33,
    34,  35,  36,  37,  38,  39,  40,  41,  42,  43,  45,  47,  48,  49,  50,  51,  52,  53,  54,
    55,  56,  57,  58,  59,  60,  61,  63,  64,  65,  66,  67,  68,  69,  70,  71,  72,  73,  74,
    75,  76,  77,  78,  79,  81,  82,  83,  84,  85,  86,  87,  88,  89,  90,  91,  92,  93,  94,
    95,  96,  97,  98,  99,  100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113,
    114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 125, 126, 127};

// The sign bit keeps its meaning across the laws; the other seven bits are the interval, inverted as the law
// says.
constexpr Orb8u ConvertALawCode(Orb8u code) {
  return static_cast<Orb8u>((code & 0x80) | (0x7F ^ kALawToMuLawIntervals[(code ^ 0x55) & 0x7F]));
}
constexpr Orb8u ConvertMuLawCode(Orb8u code) {
  return static_cast<Orb8u>((code & 0x80) | (0x55 ^ kMuLawToALawIntervals[(code ^ 0x7F) & 0x7F]));
}

template <class T>
constexpr CodeTable<T> Tabulate(T (*function)(Orb8u)) {
  CodeTable<T> table{};
  for (int code = 0; code < 256; ++code) table.entries[code] = function(static_cast<Orb8u>(code));
  return table;
}

inline constexpr CodeTable<Orb16s> ALawDecodeTable = Tabulate(DecodeALawCode);
inline constexpr CodeTable<Orb16s> MuLawDecodeTable = Tabulate(DecodeMuLawCode);
inline constexpr CodeTable<Orb8u> ALawToMuLawTable = Tabulate(ConvertALawCode);
inline constexpr CodeTable<Orb8u> MuLawToALawTable = Tabulate(ConvertMuLawCode);

// The last value of each A-law segment.
inline constexpr Orb16s ALawSegmentEnds[8] = {255, 511, 1023, 2047, 4095, 8191, 16383, 32767};

}  // namespace orbs::ORBS_VARIANT::gen

#endif
