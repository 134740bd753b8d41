// Every stub and lazy stub: through its own table, to the selected entry, with all that the caller handed
// over untouched. The variants' code is replaced by a recorder, and a selection that spoils every register it
// may stands in front of the real one (the linker wraps orbsSelectVariant).
#include <gtest/gtest.h>

#include <cstring>

#include "boundary/dispatch.h"
#include "boundary/processor/processor.h"
#include "orbs90lgc.h"
#include "tests/boundary/registers.h"
#include "tests/support/variants.h"

namespace {

bool selectionThrows = false;
bool selectionStackAligned = false;
int selections = 0;

}  // namespace

extern "C" {

void __real_orbsSelectVariant();
void __wrap_orbsSelectVariant();

void __wrap_orbsSelectVariant() {
  ++selections;
  // Above the frame address stand the caller's one and the return address; in front of them, at the call, the
  // stack must be aligned.
  const auto frame = reinterpret_cast<uintptr_t>(__builtin_frame_address(0));
  selectionStackAligned = (frame + 2 * sizeof(void*)) % 16 == 0;
  if (selectionThrows) throw 1;
  __real_orbsSelectVariant();
#ifdef __x86_64__
  __asm__ volatile(
      "movq $-1, %%rdi; movq $-1, %%rsi; movq $-1, %%rdx; movq $-1, %%rcx; movq $-1, %%rax;"
      "movq $-1, %%r8; movq $-1, %%r9; movq $-1, %%r10; movq $-1, %%r11;"
      "pcmpeqd %%xmm0, %%xmm0; pcmpeqd %%xmm1, %%xmm1; pcmpeqd %%xmm2, %%xmm2; pcmpeqd %%xmm3, %%xmm3;"
      "pcmpeqd %%xmm4, %%xmm4; pcmpeqd %%xmm5, %%xmm5; pcmpeqd %%xmm6, %%xmm6; pcmpeqd %%xmm7, %%xmm7;" ::
          : "rdi", "rsi", "rdx", "rcx", "rax", "r8", "r9", "r10", "r11", "xmm0", "xmm1", "xmm2", "xmm3",
            "xmm4", "xmm5", "xmm6", "xmm7");
#else
  __asm__ volatile("movl $-1, %%eax; movl $-1, %%ecx; movl $-1, %%edx" ::: "eax", "ecx", "edx");
#endif
}

// The array that the stubs index: eight code pointers a row, the lazy stub first.
extern void (*DispatchTable[][1 + orbs::kVariantCount])();
}

namespace orbs::test {
namespace {

struct Export {
  const char* name;
  void (*stub)();
};

// In the order of the rows.
const Export kExports[] = {
#define ORBS_EXPORT(family, result, name, arguments) \
  {#name, reinterpret_cast<void (*)()>(legacy90orbs##name)},
#include "boundary/exports.def"
};
constexpr size_t kExportCount = sizeof kExports / sizeof kExports[0];

void Trap() { FAIL() << "jumped to another entry"; }

class StubsTest : public testing::Test {
 protected:
  StubsTest() {
    std::memcpy(saved_, DispatchTable, sizeof saved_);
    for (uintptr_t* word = Words(sent_); word != Words(sent_) + sizeof sent_ / sizeof *word; ++word) {
      *word = 0x01234567u * static_cast<uintptr_t>(1 + word - Words(sent_));
    }
    orbsTestArrivals = 0;
    selections = 0;
  }
  ~StubsTest() override {
    std::memcpy(DispatchTable, saved_, sizeof saved_);
    selectionThrows = false;
    SelectForThisProcessor();
  }

  // Entry `index` of a row leads to the recorder and the others into a trap; -1: all lead to the recorder.
  static void Redirect(size_t row, int index) {
    for (int i = 0; i < kVariantCount; ++i) {
      DispatchTable[row][1 + i] = index == -1 || index == i ? orbsTestRecorder : Trap;
    }
  }

  // Calls the stub with all registers set and holds what arrived against what was sent.
  void CallAndCompare(size_t row) {
    std::memset(&orbsTestArrived, 0, sizeof orbsTestArrived);
    EXPECT_EQ(orbsTestCall(kExports[row].stub, &sent_), kOrbsTestResult);
    EXPECT_EQ(std::memcmp(&orbsTestArrived, &sent_, sizeof sent_), 0);
  }

 private:
  static uintptr_t* Words(OrbsTestRegisters& registers) { return reinterpret_cast<uintptr_t*>(&registers); }

  OrbsTestRegisters sent_;
  void (*saved_[kExportCount][1 + kVariantCount])();
};

TEST_F(StubsTest, EveryEntryIsFilledWhenTheLibraryIsLoaded) {
  for (size_t row = 0; row < kExportCount; ++row) {
    for (const auto entry : DispatchTable[row]) EXPECT_NE(entry, nullptr) << kExports[row].name;
  }
}

TEST_F(StubsTest, AStubJumpsToTheEntryOfTheIndex) {
  for (size_t row = 0; row < kExportCount; ++row) {
    for (int index = 0; index < kVariantCount; ++index) {
      SCOPED_TRACE(testing::Message() << kExports[row].name << ", index " << index);
      Redirect(row, index);
      SetCpuIndex(index);
      CallAndCompare(row);
    }
  }
  EXPECT_EQ(orbsTestArrivals, static_cast<int>(kExportCount) * kVariantCount);
  EXPECT_EQ(selections, 0);
}

TEST_F(StubsTest, ALazyStubSelectsAndJumpsOn) {
  const int expected = static_cast<int>(SelectVariant(DetectFeatures(kProcessor)).variant);
  for (size_t row = 0; row < kExportCount; ++row) {
    SCOPED_TRACE(kExports[row].name);
    Redirect(row, expected);
    SetCpuIndex(-1);
    selectionStackAligned = false;
    CallAndCompare(row);
    EXPECT_EQ(GetCpuIndex(), expected);
    EXPECT_TRUE(selectionStackAligned);
    CallAndCompare(row);  // and no second selection
    EXPECT_EQ(selections, static_cast<int>(row) + 1);
  }
}

// An exception passes a lazy stub when its unwind information is right.
TEST_F(StubsTest, ALazyStubCanBeUnwound) {
  const Orb8u code = 0x55;
  Orb16s sample = 0;
  selectionThrows = true;
  SetCpuIndex(-1);
  for (int i = 0; i < 3; ++i) EXPECT_THROW(legacy90orbsALawToLin_8u16s(&code, &sample, 1), int);
  EXPECT_EQ(sample, 0);
}

}  // namespace
}  // namespace orbs::test
