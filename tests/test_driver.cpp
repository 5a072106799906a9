// The parallel driver from the inside: a recording job shows the partition of
// count over the team, the scratch slices, and how statuses of failing shares
// merge. Budgets come from the pinned base library.
#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <mutex>
#include <vector>

#include "../src/frame/driver.h"
#include "pinned_core.h"

namespace {

struct Record {
  int thread, first, share;
  bool contiguous;
  void* scratch;
};

struct RecordingJob {
  bool contig = true;
  std::vector<int> failAt;  // objects whose kernel fails with -195
  mutable std::mutex m;
  mutable std::vector<Record> records;

  bool contiguous() const { return contig; }
  QelStatus run(bool c, int first, int share, void* scratch) const {
    {
      std::lock_guard<std::mutex> lock(m);
      records.push_back({omp_get_thread_num(), first, share, c, scratch});
    }
    for (int n = first; n < first + share; ++n)
      if (std::find(failAt.begin(), failAt.end(), n) != failAt.end()) return qelStatusSingular;
    return qelStatusOk;
  }
  std::vector<Record> sorted() const {
    std::vector<Record> r = records;
    std::sort(r.begin(), r.end(), [](const Record& a, const Record& b) { return a.first < b.first; });
    return r;
  }
};

TEST(Driver, ShareOfGivesTheFirstExtraThreadsOneMore) {
  // 10 objects over 4 threads: 3, 3, 2, 2 in thread order.
  const int perThread = 10 / 4, extra = 10 % 4;
  const qel::Share want[] = {{0, 3}, {3, 3}, {6, 2}, {8, 2}};
  for (int t = 0; t < 4; ++t) {
    const qel::Share s = qel::shareOf(t, perThread, extra);
    EXPECT_EQ(s.first, want[t].first) << t;
    EXPECT_EQ(s.size, want[t].size) << t;
  }
}

TEST(Driver, TeamSharesCoverCountContiguously) {
  for (int budget : {2, 3}) {
    for (int count : {budget, budget + 1, 7, 100}) {
      PinnedBudget pin(budget);
      RecordingJob job;
      ASSERT_EQ(qel::parallelDriver(job, count), qelStatusOk);
      EXPECT_EQ(pin.calls(), 2);
      const std::vector<Record> r = job.sorted();
      int next = 0;
      for (const Record& rec : r) {
        EXPECT_EQ(rec.first, next);
        EXPECT_TRUE(rec.contiguous);
        next += rec.share;
      }
      EXPECT_EQ(next, count);
      // The team may be smaller than asked, but shares differ by one at most
      // and larger shares come first.
      for (size_t k = 1; k < r.size(); ++k) EXPECT_LE(r[k].share, r[k - 1].share);
      if (count == budget + 1 && int(r.size()) == budget) {
        EXPECT_EQ(r[0].share, 2);
      }
    }
  }
}

TEST(Driver, FallsThroughBelowTheGate) {
  for (auto [budget, count] : {std::pair{1, 10}, {0, 10}, {-1, 10}, {4, 3}}) {
    PinnedBudget pin(budget);
    RecordingJob job;
    job.contig = false;
    void* buffer = &job;
    ASSERT_EQ(qel::parallelDriver(job, count, {}, buffer), qelStatusOk);
    EXPECT_EQ(pin.calls(), 1);
    ASSERT_EQ(job.records.size(), 1u);
    EXPECT_EQ(job.records[0].share, count);
    EXPECT_FALSE(job.records[0].contiguous);
    EXPECT_EQ(job.records[0].scratch, buffer) << "the serial path uses the caller's buffer";
  }
}

TEST(Driver, ScratchSlicesByThreadNumber) {
  PinnedBudget pin(2);
  RecordingJob job;
  int callerBuffer = 0;
  ASSERT_EQ(qel::parallelDriver(job, 10, {false, 256}, &callerBuffer), qelStatusOk);
  const std::vector<Record> r = job.sorted();
  ASSERT_FALSE(r.empty());
  const char* block = static_cast<const char*>(r[0].scratch) - 256 * r[0].thread;
  for (const Record& rec : r) {
    EXPECT_NE(rec.scratch, &callerBuffer) << "the parallel path leaves the caller's buffer alone";
    EXPECT_EQ(static_cast<const char*>(rec.scratch), block + 256 * rec.thread);
  }
}

TEST(Driver, SharedStatusReportsAFailureAndEveryShareRuns) {
  PinnedBudget pin(2);
  RecordingJob job;
  job.failAt = {1, 8};  // one failure in each half
  EXPECT_EQ(qel::parallelDriver(job, 10, {true, 0}), qelStatusSingular);
  int covered = 0;
  for (const Record& rec : job.records) covered += rec.share;
  EXPECT_EQ(covered, 10);

  RecordingJob plain;
  plain.failAt = {1};
  EXPECT_EQ(qel::parallelDriver(plain, 10), qelStatusOk) << "drivers without a status ignore results";
}

TEST(Driver, WorkFiguresWrapIn32Bits) {
  const qel::Work w = qel::Work(65536) * 65536 + 5;
  EXPECT_EQ(w.value(), 5);
  const qel::Work neg = qel::Work(46341) * 46341;  // 2147488281 wraps negative
  EXPECT_LT(neg.value(), 0);
  EXPECT_TRUE(qel::WorkLimit::serialBelow(2000).serial(neg.value()));
  EXPECT_TRUE(qel::WorkLimit::serialBelow(2000).serial(1999));
  EXPECT_FALSE(qel::WorkLimit::serialBelow(2000).serial(2000));
  EXPECT_TRUE(qel::WorkLimit::parallelAbove(4800).serial(4800));
  EXPECT_FALSE(qel::WorkLimit::parallelAbove(4800).serial(4801));
  EXPECT_TRUE(qel::WorkLimit::serialAtMost(10).serial(10));
  EXPECT_FALSE(qel::WorkLimit::parallelFrom(10).serial(10));
}

}  // namespace
