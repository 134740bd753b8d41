// The first call into the library, on the product. A process selects once, so each test runs its body in
// fresh child processes; this process itself never calls the library.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "orbs90lgc.h"
#include "tests/support/variants.h"

namespace orbs::test {
namespace {

template <class Body>
void InFreshProcess(Body body) {
  std::fflush(nullptr);
  const pid_t child = fork();
  ASSERT_NE(child, -1);
  if (child == 0) {
    body();
    std::fflush(nullptr);
    _exit(testing::Test::HasFailure() ? 1 : 0);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
}

// The last variant, in the order of the tables, that the compiler's own detection allows. A variant that a
// quick build left out is served by px.
std::string ExpectedCode() {
  int index = kVariantCount - 1;
  while (!CanRun(kAllVariants[index])) --index;
  const std::string code = VariantName(kAllVariants[index]);
  return std::string(" " ORBS_BUILT_VARIANTS " ").find(" " + code + " ") != std::string::npos ? code : "px";
}

void ExpectSelected() { EXPECT_STREQ(legacy90orbsGetLibVersion()->targetCpu, ExpectedCode().c_str()); }

// Some exports with a result that shows whether they ran and had their arguments.
using Call = bool (*)();
const Call kCalls[] = {
    [] { return legacy90orbsGetLibVersion()->targetCpu == ExpectedCode(); },
    [] {
      const Orb8u codes[3] = {0xD5, 0x55, 0xAA};
      Orb16s samples[4] = {1, 1, 1, 1};
      return legacy90orbsALawToLin_8u16s(codes, samples, 3) == StatusOk && samples[0] == 8 &&
             samples[1] == -8 && samples[2] == 32256 && samples[3] == 1;
    },
    [] {
      const Orb16s samples[2] = {0, -1};
      Orb8u codes[3] = {1, 1, 1};
      return legacy90orbsLinToMuLaw_16s8u(samples, codes, 2) == StatusOk && codes[0] == 0xFF &&
             codes[1] == 0x7F && codes[2] == 1;
    },
    [] {
      const Orb32f samples[2] = {1.0f, -1.0f};
      Orb8u codes[3] = {1, 1, 1};
      return legacy90orbsLinToALaw_32f8u(samples, codes, 2) == StatusOk && codes[0] == 0xAA &&
             codes[1] == 0x2A && codes[2] == 1;
    },
    [] {
      Orb8u code = 0;
      return legacy90orbsMuLawToALaw_8u(nullptr, &code, 1) == StatusNullPointer;
    },
    [] {
      const OrbStatus status = legacy90orbsInit();
      return status == StatusOk || status == StatusNoCpuSupport;
    },
};

TEST(FirstCall, SelectsAVariantAndRuns) {
  for (const Call call : kCalls) {
    InFreshProcess([call] {
      EXPECT_TRUE(call());
      ExpectSelected();
      EXPECT_TRUE(call());
    });
  }
}

TEST(FirstCall, MayBeRaced) {
  static constexpr int kThreads = 8;
  for (int round = 0; round < 25; ++round) {
    InFreshProcess([] {
      std::atomic<int> ready{0};
      std::atomic<int> right{0};
      std::vector<std::thread> threads;
      for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&ready, &right, i] {
          ++ready;
          while (ready != kThreads) std::this_thread::yield();
          right += kCalls[i % (sizeof kCalls / sizeof kCalls[0])]();
        });
      }
      for (std::thread& thread : threads) thread.join();
      EXPECT_EQ(right, kThreads);
      ExpectSelected();
    });
  }
}

TEST(Init, RepeatsItsAnswer) {
  InFreshProcess([] {
    const OrbStatus status = legacy90orbsInit();
    EXPECT_TRUE(status == StatusOk || status == StatusNoCpuSupport) << status;
    ExpectSelected();
    const OrbLibraryVersion* version = legacy90orbsGetLibVersion();
    for (int i = 0; i < 3; ++i) EXPECT_EQ(legacy90orbsInit(), status);
    EXPECT_EQ(legacy90orbsGetLibVersion(), version);
  });
}

TEST(LibVersion, IsOneConstantRecord) {
  InFreshProcess([] {
    const OrbLibraryVersion* version = legacy90orbsGetLibVersion();
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(legacy90orbsGetLibVersion(), version);
    EXPECT_EQ(version->major, 9);
    EXPECT_EQ(version->minor, 0);
    EXPECT_EQ(version->majorBuild, 0);
    EXPECT_EQ(version->build, -1);
    const char code[4] = {ExpectedCode()[0], ExpectedCode()[1], 0, 0};
    EXPECT_EQ(std::memcmp(version->targetCpu, code, 4), 0);
    EXPECT_NE(std::string(version->name).find("(" + ExpectedCode() + ")"), std::string::npos);
    EXPECT_STREQ(version->version, "9.0 Legacy (r48491) (-)");
    EXPECT_STREQ(version->buildDate, "Oct 13 2015");
  });
}

TEST(Threads, AreNone) {
  InFreshProcess([] {
    EXPECT_EQ(legacy90orbsGetNumThreads(nullptr), StatusNullPointer);
    for (const Orb32s requested : {1, 0, -1, 64, 2147483647}) {
      Orb32s threads = 77;
      EXPECT_EQ(legacy90orbsSetNumThreads(requested), StatusNoThreads);
      EXPECT_EQ(legacy90orbsGetNumThreads(&threads), StatusNoThreads);
      EXPECT_EQ(threads, 1);
    }
    ExpectSelected();
  });
}

}  // namespace
}  // namespace orbs::test
