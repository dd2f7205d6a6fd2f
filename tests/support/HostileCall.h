#pragma once

#include "tests/support/DBusValueMaker.h"
#include "tests/support/Getters.h"

#include <array>
#include <random>

namespace Tests
{

/// What the hostile service does when it is called.
enum class Scenario {
    Answers,
    AnswersTwice,
    AnswersTooLate,
    RefusesWithAnError,
    LeavesTheBusWithoutAnswering, // and returns to it at once
    DiesBeforeAnswering,
    HandsItsNameToASuccessor, // before it answers
};

/// Every PERIOD-th call, beginning with FIRST.
struct CallNumbers {
    int period;
    int first;
    bool contain(int number) const { return number % period == first; }
};

constexpr CallNumbers goodAnswers{2, 1}; // so that each made-up answer is followed by a good one
constexpr CallNumbers lateAnswers{20000, 100};
constexpr CallNumbers hugeAnswers{20000, 200};
constexpr CallNumbers deaths{4000, 300};
constexpr int oddScenariosInMadeUpAnswers = 100; // one in so many

constexpr int sizeOfHugeAnswer = 32 * 1024 * 1024 - 4096; // the largest that the bus lets through
constexpr unsigned long lateInMilliseconds = 5300;        // the connectors wait for 5000

struct Random {
    std::mt19937 engine;

    int below(int end) { return static_cast<int>(engine() % static_cast<uint>(end)); }
    qint64 bits() { return static_cast<qint64>((quint64(engine()) << 32U) | engine()); }
};

/// One call to the hostile service: the getter that the test calls, and what the service does. Both processes derive it
/// from the seed and the number of the call alone, so that the test knows what to expect.
class HostileCall
{
public:
    HostileCall(uint seed, int number)
        : random{std::mt19937(seed * 1000003U + static_cast<uint>(number))}
        , getter(getters[random.below(5)])
    {
        if (hugeAnswers.contain(number))
            body = {make.record({"ay", QByteArray(sizeOfHugeAnswer, 'x'), {}}, false)};
        else if (goodAnswers.contain(number))
            body = {make.record(make.value(getter.givesSizes() ? "a((ii)s)" : "s"), false)};
        else
            makeUpBody();
        if (lateAnswers.contain(number))
            scenario = Scenario::AnswersTooLate;
        else if (deaths.contain(number))
            scenario = Scenario::DiesBeforeAnswering;
        else if (!goodAnswers.contain(number) && make.isOneIn(oddScenariosInMadeUpAnswers))
            scenario = make.oneOf(oddScenarios);
    }

private:
    static constexpr std::array oddScenarios{Scenario::RefusesWithAnError, Scenario::AnswersTwice,
                                             Scenario::LeavesTheBusWithoutAnswering,
                                             Scenario::HandsItsNameToASuccessor};

    // A variant, which up to two other values follow in one of ten cases; in another one of ten the variant is missing.
    void makeUpBody()
    {
        const bool isVariant = !make.isOneIn(10);
        if (isVariant)
            body = {make.answer()};
        for (int more = isVariant && !make.isOneIn(10) ? 0 : random.below(3); more > 0; --more)
            body.append(make.value(make.signature(2)));
    }

    Random random;
    DBusValueMaker<Random> make{random};

public:
    const Getter& getter;
    Scenario scenario = Scenario::Answers;
    QVector<DBusValue> body;
};

} // namespace Tests
