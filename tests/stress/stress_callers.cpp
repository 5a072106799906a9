// Many callers at once: eight threads call a mix of exports from every family,
// each on its own data (in a layout of its own), small calls that stay serial
// and large ones that fork a team inside the calling thread, calls that
// succeed, calls whose objects fail and calls refused by their argument checks. Every result (status, the
// bits of every output, and that nothing outside the outputs was written) must
// equal that of the same call made alone beforehand, on one thread.
//
// Built with ThreadSanitizer (QELM_TSAN) the same run is the race check; the
// ordinary builds run it as one more test. QELM_STRESS_ROUNDS sets how often
// each thread goes through its calls (default 3).
#include <gtest/gtest.h>

#include <cstdio>
#include <latch>
#include <mutex>
#include <thread>

#include "mix.h"

namespace {

using namespace stress;
constexpr int kThreads = 8;

struct Variant {
  const Row* row;
  int n;
  bool forks;
  std::string name() const { return std::string(row->name) + " count " + std::to_string(n); }
};
std::vector<Variant> variants() {
  std::vector<Variant> v;
  for (const Row& r : mix()) {
    v.push_back({&r, 0, false});
    v.push_back({&r, r.small, false});
    if (r.large) v.push_back({&r, r.large, r.forks});
  }
  return v;
}

int rounds() {
  const char* e = std::getenv("QELM_STRESS_ROUNDS");
  return e && std::atoi(e) > 0 ? std::atoi(e) : 3;
}

}  // namespace

TEST(StressCallers, ManyCallersGetWhatEachCallGetsAlone) {
  pinnedSetBudget(kBudget);
  const std::vector<Variant> vs = variants();
  // Every thread's own calls, and their results made alone on this thread.
  // Thread t keeps its inputs in form t mod 6 (thread 0 packed).
  std::vector<std::vector<Instance>> mine(kThreads);
  std::vector<std::vector<Result>> alone(kThreads);
  int forked = 0, failed = 0, refused = 0;
  for (int t = 0; t < kThreads; ++t)
    for (size_t i = 0; i < vs.size(); ++i) {
      Instance& c = mine[t].emplace_back(uint32_t(1000 * t + 10 * i + 1), qt::allForms()[t % qt::allForms().size()]);
      c.call = vs[i].row->make(c, vs[i].n, vs[i].row->fill);
      pinnedResetCalls();
      alone[t].push_back(c.run());
      // A forked call asks the budget twice (gate and team size), a serial one
      // at most once; a chained row may make two forked calls.
      const bool fork = pinnedBudgetCalls() >= 2;
      if (t > 0) continue;
      EXPECT_EQ(fork, vs[i].forks) << vs[i].name();
      const QelStatus st = alone[t].back().status;
      if (vs[i].row->fill.every && vs[i].n > 1) {
        EXPECT_NE(st, 0) << vs[i].name() << ": objects fail";
      }
      forked += fork, (vs[i].n ? failed : refused) += st != 0;
    }
  std::printf("%zu calls per thread: %d forking, %d failing, %d refused; %d threads, budget %d, %d rounds\n",
              vs.size(), forked, failed, refused, kThreads, kBudget, rounds());

  std::mutex m;
  std::vector<std::string> diffs;
  std::latch start(kThreads);
  std::vector<std::thread> team;
  for (int t = 0; t < kThreads; ++t)
    team.emplace_back([&, t] {
      std::mt19937 rng(t);
      std::vector<size_t> order(vs.size());
      for (size_t i = 0; i < order.size(); ++i) order[i] = i;
      start.arrive_and_wait();
      for (int r = 0; r < rounds(); ++r) {
        std::shuffle(order.begin(), order.end(), rng);
        for (size_t i : order) {
          const Result got = mine[t][i].run();
          if (got == alone[t][i]) continue;
          std::lock_guard<std::mutex> lock(m);
          diffs.push_back("thread " + std::to_string(t) + ", " + vs[i].name() + ": status " +
                          std::to_string(got.status) + " against " + std::to_string(alone[t][i].status) +
                          (got.bits == alone[t][i].bits ? ", same outputs" : ", outputs differ"));
        }
      }
    });
  for (auto& th : team) th.join();
  pinnedSetBudget(1);
  for (size_t k = 0; k < diffs.size() && k < 20; ++k) ADD_FAILURE() << diffs[k];
  EXPECT_TRUE(diffs.empty()) << diffs.size() << " results differ";
}
