#include "tests/support/checked_calls/checked_calls.h"

#include <gtest/gtest.h>

#include <cpuid.h>

#include <cstdlib>
#include <cstring>

bool orbsHasAvx = __builtin_cpu_supports("avx");

namespace orbs::test {
namespace {

struct Export {
  const char* family;
  const char* name;
};

constexpr Export kExports[] = {
#define ORBS_EXPORT(family, result, name, arguments) {#family, #name},
#include "boundary/exports.def"
};
constexpr int kExportCount = sizeof kExports / sizeof kExports[0];

int64_t calls[kExportCount];

constexpr uintptr_t kDirectionFlag = 1u << 10;
constexpr uint32_t kMxcsrControl = ~0x3Fu;  // all but the sticky flags
constexpr uint16_t kX87AllEmpty = 0xFFFF;

struct X87Environment {
  uint16_t control, unused1;
  uint16_t status, unused2;
  uint16_t tags, unused3;
  uint32_t pointers[4];
};

X87Environment StoreX87Environment() {
  X87Environment environment;
  __asm__ volatile("fnstenv %0\n\tfldcw %0" : "=m"(environment));
  return environment;
}

uint32_t Mxcsr() {
  uint32_t mxcsr;
  __asm__ volatile("stmxcsr %0" : "=m"(mxcsr));
  return mxcsr;
}

// XGETBV of register 1 tells which parts of the state differ from their initial ones.
bool UpperHalvesInUse() {
  uint32_t low, high;
  __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
  return (low & 4) != 0;
}

// Emulators and older processors do not have that register, or answer the same whatever the state is.
bool CanAskForUpperHalves() {
  uint32_t a, b, c, d;
  if (!orbsHasAvx || __get_cpuid_count(0xD, 1, &a, &b, &c, &d) == 0 || (a & 4) == 0) return false;
  __asm__ volatile("vzeroupper");
  return !UpperHalvesInUse();
}

const bool canAskForUpperHalves = CanAskForUpperHalves();

// Without optimization the compiler does not clear them.
#ifdef ORBS_UPPER_HALVES_STAY
constexpr bool kUpperHalvesAreCleared = false;
#else
constexpr bool kUpperHalvesAreCleared = true;
#endif

bool LeftUpperHalvesDirty() {
  if (!kUpperHalvesAreCleared || !orbsHasAvx) return false;
  return canAskForUpperHalves ? UpperHalvesInUse() : orbsUpperHalvesHoldData();
}

bool KeptRegisters(const OrbsCallRecord& record) {
  uintptr_t expected = ORBS_KEPT_REGISTER;
  for (const uintptr_t kept : record.kept) {
    if (kept != expected++) return false;
  }
  return true;
}

// With the name of a family in ORBS_EXPECT_CALLS the program fails unless its tests have called every export
// of it: so a run over a variant is a run over all that the family exports.
class EveryExportIsCalled : public testing::Environment {
 public:
  void TearDown() override {
    const char* family = std::getenv("ORBS_EXPECT_CALLS");
    if (family == nullptr) return;
    int64_t total = 0;
    for (const int64_t count : calls) total += count;
    if (total == 0) return;  // a processor that cannot run the variant
    bool isFamily = false;
    for (int i = 0; i < kExportCount; ++i) {
      if (std::strcmp(family, kExports[i].family) != 0) continue;
      isFamily = true;
      if (calls[i] == 0) ADD_FAILURE() << kExports[i].name << " was never called";
    }
    EXPECT_TRUE(isFamily) << "no export belongs to " << family;
  }
};

[[maybe_unused]] testing::Environment* const kEveryExportIsCalled =
    testing::AddGlobalTestEnvironment(new EveryExportIsCalled);

}  // namespace
}  // namespace orbs::test

void orbsAfterCall(int exportIndex, const OrbsCallRecord* record) {
  using namespace orbs::test;
  ++calls[exportIndex];
  // First of all: what follows may use vectors itself.
  const bool isDirty = LeftUpperHalvesDirty();
  const X87Environment x87 = StoreX87Environment();
  const bool keptControlWords =
      x87.control == record->x87Control && ((Mxcsr() ^ record->mxcsr) & kMxcsrControl) == 0;
  const bool isForward = (record->flags & kDirectionFlag) == 0;
  const bool isX87Empty = x87.tags == kX87AllEmpty;
  const bool keptRegisters = KeptRegisters(*record);
  // Some tests make millions of calls, and an assertion costs more than the short ones of these.
  if (!isDirty && keptControlWords && isForward && isX87Empty && keptRegisters) return;

  const char* const name = kExports[exportIndex].name;
  EXPECT_FALSE(isDirty) << name << " left the upper halves of the vector registers in use";
  EXPECT_TRUE(keptControlWords) << name << " changed the x87 control word or MXCSR";
  EXPECT_TRUE(isForward) << name << " set the direction flag";
  EXPECT_TRUE(isX87Empty) << name << " left values on the x87 stack";
  EXPECT_TRUE(keptRegisters) << name << " changed a register that belongs to its caller";
}
