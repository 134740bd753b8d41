// The generator below all random numbers: subtract-with-borrow plus linear congruential, modulo 2^32.
#ifndef ORBS_GEN_RANDOM_RANDOM_SEQUENCE_H
#define ORBS_GEN_RANDOM_RANDOM_SEQUENCE_H

#include "orbs90lgc/types.h"
#include "simd/simd.h"

namespace orbs::ORBS_VARIANT::gen {

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

  Orb32u Next() {
    const Orb32u t = middle_ - oldest_ + borrow_;
    borrow_ = Sign(t);
    oldest_ = middle_;
    middle_ = newest_;
    return newest_ = t - (borrow_ & 18);
  }

  // The next `count` words, rounded up to a multiple of three, on the assumption that no borrow turns the
  // sign of the next difference: the borrow then follows from the difference of two words alone. That cuts
  // the chain from borrow to borrow, and what remains from word to word is four instructions in two steps.
  ORBS_INLINE void NextIndependent(Orb32u* words, int count) {
    Orb32u oldest = oldest_;
    Orb32u middle = middle_;
    Orb32u newest = newest_;
    Orb32u borrow = borrow_;
    const auto word = [&borrow](Orb32u difference) {
      // Two candidates and a conditional move; a mask would make the chain longer.
      const Orb32u ifPositive = difference + borrow;
      const Orb32u ifNegative = difference + (borrow - 18);
      borrow = Sign(difference);
      return static_cast<Orb32s>(difference) < 0 ? ifNegative : ifPositive;
    };
    // Each word takes the place of the oldest, so that nothing has to be moved.
    for (int i = 0; i < count; i += 3) {
      words[i] = oldest = word(middle - oldest);
      words[i + 1] = middle = word(newest - middle);
      words[i + 2] = newest = word(oldest - newest);
    }
    oldest_ = oldest;
    middle_ = middle;
    newest_ = newest;
    borrow_ = borrow;
  }

  // W[n-3] to W[n-1], the words before the next one.
  void History(Orb32u* words) const {
    words[0] = oldest_;
    words[1] = middle_;
    words[2] = newest_;
  }

 private:
  static ORBS_INLINE Orb32u Sign(Orb32u x) { return 0 - (x >> 31); }

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

// Where in the generator's two parts a call is. The caller of RandomBlock keeps it as a local object: its
// members then stay in registers, and the chain from block to block does not lead through memory.
struct RandomPlace {
  BorrowSequence words;
  I32 linear = I32::Load(kLinearSteps.start);

  explicit RandomPlace(Orb32u seed) : words(seed) {}
};

class RandomBlock {
 public:
  // Makes `count` numbers: a half or a whole block; the last time also any number in between or below.
  ORBS_INLINE void Fill(RandomPlace& place, int count) {
    const BorrowSequence start = place.words;
    start.History(words_);
    place.words.NextIndependent(words_ + kHistory, count);
    if (__builtin_expect(BorrowsDepend(count), false)) place.words = FillDependent(start, count);
    const I32 factor = I32::All(static_cast<Orb32s>(kLinearSteps.factor));
    const I32 term = I32::All(static_cast<Orb32s>(kLinearSteps.term));
    for (int i = 0; i < count; i += I32::kLanes) {
      (Words(kHistory + i) + place.linear).Store(numbers + i);
      place.linear = place.linear * factor + term;
    }
  }

  Orb32u word(int i) const { return words_[kHistory + i]; }

  Orb32s numbers[kRandomBlock] = {};

 private:
  static constexpr int kHistory = 3;

  ORBS_INLINE I32 Words(int i) const { return I32::Load(reinterpret_cast<const Orb32s*>(words_) + i); }

  // A borrow turns the sign of a difference only if that is 0 or -2^31: once in two thousand million steps.
  // Numbers beyond `count` may report one too: the exact chain then runs without need.
  ORBS_INLINE bool BorrowsDepend(int count) const {
    I32 found = I32::Zero();
    for (int i = 0; i < count; i += I32::kLanes) {
      const I32 difference = Words(i + 1) - Words(i);
      found = found | Equal(ShiftLeft(difference, 1), I32::Zero());
    }
    return SignBits(AsFloat(found)) != 0;
  }

  __attribute__((noinline, cold)) BorrowSequence FillDependent(BorrowSequence sequence, int count) {
    for (int i = 0; i < count; ++i) words_[kHistory + i] = sequence.Next();
    return sequence;
  }

  // What a short block leaves out may be converted all the same.
  Orb32u words_[kHistory + kRandomBlock] = {};
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

}  // namespace orbs::ORBS_VARIANT::gen

#endif
