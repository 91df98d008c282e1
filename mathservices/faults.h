#pragma once
#include <stdexcept>
#include <string>

// A fault inside a generator that the hub turns into the problem's error text. It is
// thrown where a routine meets a run-time error or passes a retry bound, which would
// otherwise stop the program or loop for ever; the hub catches it, so it never stops a
// collection.
struct GeneratorFault : std::runtime_error {
    GeneratorFault(int number, const std::string& description)
        : std::runtime_error(description), number(number) {}
    int number;
};

// Error numbers and texts of the run-time faults the hub reports.
inline constexpr int kFaultInvalidCall = 5;
inline constexpr int kFaultOverflow = 6;
inline constexpr int kFaultSubscript = 9;
inline constexpr int kFaultDivisionByZero = 11;
inline constexpr int kFaultRetryLimit = 17;

const char* FaultDescription(int number);

// A loop that waits for a nice draw counts its rounds here. Good draws need a handful;
// passing the limit means the draw can never succeed, which is a fault, never a hang.
class RetryBound {
public:
    explicit RetryBound(long limit = 100000) : limit_(limit) {}
    void Next() {
        if (++rounds_ > limit_) throw GeneratorFault(kFaultRetryLimit, FaultDescription(kFaultRetryLimit));
    }
    long Rounds() const { return rounds_; }

private:
    long rounds_ = 0;
    long limit_;
};
