// Random sources that a test decides.
#pragma once

#include <deque>
#include <gtest/gtest.h>
#include <vector>

#include "platform/random_source.h"

namespace quenloft {

/// Gives the same value for ever: 0 rolls a 1, 0.5 the middle, 0.999 the highest face.
class ConstantRandom : public RandomSource {
  public:
    explicit ConstantRandom(double value = 0) : value_(value) {}
    double Next() override { return value_; }
    void ReseedFromTimer() override {}
    void Reseed(double) override {}
    double TickCount() override { return 0; }
    MemoryFigures Memory() override { return {}; }

  private:
    double value_;
};

/// Gives exactly the values written down and records each reseeding; a value more is a failure.
class ScriptedRandom : public RandomSource {
  public:
    explicit ScriptedRandom(const std::vector<double>& values)
        : values_(values.begin(), values.end()) {}

    double Next() override {
        if (values_.empty()) {
            ADD_FAILURE() << "more random values were asked for than written down";
            return 0;
        }
        const double value = values_.front();
        values_.pop_front();
        return value;
    }
    void ReseedFromTimer() override { ++timerReseeds; }
    void Reseed(double number) override { reseeds.push_back(number); }
    double TickCount() override { return tickCount; }
    MemoryFigures Memory() override { return memory; }

    std::size_t Left() const { return values_.size(); }

    double tickCount = 0;
    MemoryFigures memory;
    int timerReseeds = 0;
    std::vector<double> reseeds;

  private:
    std::deque<double> values_;
};

}  // namespace quenloft
