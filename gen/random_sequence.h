// The generator below all random numbers: subtract-with-borrow plus linear congruential, modulo 2^32.
#ifndef ORBS_GEN_RANDOM_SEQUENCE_H
#define ORBS_GEN_RANDOM_SEQUENCE_H

#include "frame/simd.h"
#include "orbs90lgc/types.h"

namespace orbs::ORBS_VARIANT {

inline constexpr Orb32u kLinearFactor = 69069;
inline constexpr Orb32u kLinearTerm = 1013904243;
inline constexpr Orb32u kLinearStart = 1131199209;

// The words W of the first part of the generator.
class BorrowSequence {
 public:
  explicit BorrowSequence(Orb32u seed) {
    const Orb32u first = kLinearFactor * seed + kLinearTerm;
    oldest_ = kLinearFactor * first + kLinearTerm;
    middle_ = first;
    newest_ = seed;
  }

  // The next three words. Each takes the place of the oldest, so that nothing has to be moved.
  ORBS_INLINE void NextThree(Orb32u* words) {
    words[0] = oldest_ = Word(middle_ - oldest_);
    words[1] = middle_ = Word(newest_ - middle_);
    words[2] = newest_ = Word(oldest_ - newest_);
  }

  Orb32u Next() {
    const Orb32u word = Word(middle_ - oldest_);
    oldest_ = middle_;
    middle_ = newest_;
    return newest_ = word;
  }

 private:
  // The chain from borrow to borrow, an addition and a test of the sign, bounds the speed of the whole
  // generator; nothing else of a step may stand in it.
  ORBS_INLINE Orb32u Word(Orb32u difference) {
    const Orb32u t = difference + borrow_;
    borrow_ = 0 - (t >> 31);
    return t - (borrow_ & 18);
  }

  Orb32u oldest_;
  Orb32u middle_;
  Orb32u newest_;
  Orb32u borrow_ = 0xFFFFFFFF;  // 0 or -1
};

#if ORBS_VECTOR

// Blocks end where a vector of any variant, three words and a pair of numbers end. Short enough that the
// processor works on the conversion of one block while the chain of the next one has begun.
inline constexpr int kRandomHalfBlock = 24;
inline constexpr int kRandomBlock = 2 * kRandomHalfBlock;

// L(n) for the first lanes, and the step that takes each lane over all of them.
struct LinearSteps {
  Orb32s start[I32::kLanes];
  Orb32u factor = 1;
  Orb32u term = 0;

  constexpr LinearSteps() : start() {
    Orb32u value = kLinearStart;
    for (Orb32s& lane : start) {
      value = kLinearFactor * value + kLinearTerm;
      lane = static_cast<Orb32s>(value);
      term = kLinearFactor * term + kLinearTerm;
      factor *= kLinearFactor;
    }
  }
};

inline constexpr LinearSteps kLinearSteps{};

class RandomBlocks {
 public:
  explicit RandomBlocks(Orb32u seed) : words_(seed), linear_(I32::Load(kLinearSteps.start)) {}

  // Makes `count` numbers: a half or a whole block; the last time also any number in between or below.
  void Next(int count) {
    for (int i = 0; i < count; i += 3) words_.NextThree(words + i);
    const I32 factor = I32::All(static_cast<Orb32s>(kLinearSteps.factor));
    const I32 term = I32::All(static_cast<Orb32s>(kLinearSteps.term));
    for (int i = 0; i < count; i += I32::kLanes) {
      (I32::Load(reinterpret_cast<const Orb32s*>(words) + i) + linear_).Store(numbers + i);
      linear_ = linear_ * factor + term;
    }
  }

  // What a short block leaves out may be converted all the same.
  Orb32u words[kRandomBlock] = {};
  Orb32s numbers[kRandomBlock] = {};

 private:
  BorrowSequence words_;
  I32 linear_;
};

#else

class RandomNumbers {
 public:
  explicit RandomNumbers(Orb32u seed) : words_(seed) {}

  Orb32s Next() {
    lastWord_ = words_.Next();
    linear_ = kLinearFactor * linear_ + kLinearTerm;
    return static_cast<Orb32s>(lastWord_ + linear_);
  }

  Orb32u lastWord() const { return lastWord_; }

 private:
  BorrowSequence words_;
  Orb32u linear_ = kLinearStart;
  Orb32u lastWord_ = 0;
};

#endif

}  // namespace orbs::ORBS_VARIANT

#endif
