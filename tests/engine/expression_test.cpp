#include "engine/expression.h"

#include <gtest/gtest.h>
#include <optional>

#include "engine/failure.h"
#include "tests/support/fake_host.h"
#include "tests/support/repeated.h"

namespace quenloft {
namespace {

using Cases = std::initializer_list<std::pair<const char*, const char*>>;

class Expressions : public testing::Test {
  protected:
    /// The text form of the value, or "! " and the failure's description.
    std::string Evaluate(const std::string& text) {
        try {
            return EvaluateExpr(text, variables_, host_).TextForm();
        } catch (const Failure& failure) {
            return std::string("! ") + failure.what();
        }
    }
    void Expect(Cases cases) {
        for (const auto& [text, value] : cases) {
            EXPECT_EQ(Evaluate(text), value) << text;
        }
    }
    void Set(const std::string& name, const Value& value) {
        variables_.SetVariable(name, value, VariableStore::Operation::Set);
    }

    VariableStore variables_;
    FakeHost host_;
};

// "*" binds tighter than "\", which binds tighter than "%"; an empty operand counts as 0.
TEST_F(Expressions, GroupByPriorityAndFromTheLeft) {
    const Cases cases = {
        {"(3+4)*2", "14"}, {"3+4*2", "11"},       {"10-2-3", "5"},        {"2^3^2", "64"},
        {"2*3^2", "18"},   {"7\\2*2", "1"},       {"7%4\\2", "1"},        {"8%3+1", "3"},
        {"-2^2", "4"},     {"2--3", "5"},         {"2-+-3", "5"},         {"--5", "5"},
        {"-(2+3)", "-5"},  {"- 5", "-5"},         {"2**3", "0"},          {"5-", "5"},
        {"*", "0"},        {"0*-1", "0"},         {"7.5\\2", "4"},        {"6.5\\2", "3"},
        {"-7%3", "-1"},    {"1+(2*(3+4))", "15"}, {" ( 1 + 2 )*3 ", "9"},
    };
    Expect(cases);
    EXPECT_EQ(Evaluate("5000000000%3000000000"), "2000000000");
}

TEST_F(Expressions, CompareAtThePriorityOfPlus) {
    const Cases cases = {
        {"1<2", "True"},     {"1<=2", "True"},     {"2>=3", "False"}, {"2>=2", "True"},
        {"3>2", "True"},     {"1=1", "True"},      {"1<2+3", "2"},    {"1<=2+3", "2"},
        {"abc<abd", "True"}, {"Z<a", "True"},      {"5<abc", "True"}, {"abc<5", "False"},
        {"abc=abc", "True"}, {"abc=ABC", "False"}, {"1==2", "False"}, {"=5", "=5"},
        {"0=", "True"},      {"abc=", "False"},    {"1<", "False"},   {"1<2<3", "True"},
        {"1 <= 2", "True"},  {"3&4", "34"},        {"3&4+1", "35"},   {"a&b&c", "abc"},
        {"1=1=-1", "True"},
    };
    Expect(cases);
}

TEST_F(Expressions, TextStandsForItself) {
    const Cases cases = {
        {"abc", "abc"},
        {"abc+def", "abcdef"},
        {"5 gold", "5 gold"},
        {"$5*2", "10"},
        {"1,000+1", "1001"},
        {"SIN()", "SIN()"},
        {"FOO(30)", "FOO(30)"},
        {"xSIN(30)", "xSIN(30)"},
        {"1 2", "1 2"},
        {"", ""},
        {"()", ""},
    };
    Expect(cases);
}

TEST_F(Expressions, CallTheTenFunctions) {
    const Cases cases = {
        {"sin(30)", "0.5"}, {"SIN(30)*2", "1"},    {"-SIN(30)", "-0.5"}, {"COS(60)", "0.5"},
        {"TAN(45)", "1"},   {"SQR(16)", "4"},      {"rnd(2.5)", "2"},    {"RND(3.5)", "4"},
        {"LOG(1)", "0"},    {"EXP(0)", "1"},       {"VAL(12abc)", "12"}, {"VAL(abc)", "0"},
        {"VAL(2&3)", "23"}, {"SQR(SQR(16))", "2"},
    };
    Expect(cases);
}

TEST_F(Expressions, FailWithACause) {
    const Cases cases = {
        {"1)", "! Too many )s in '1)'"},
        {" (1)(2) ", "! Too many )s in '1)(2'"},
        {"(1+2", "! Missing ) in '(1+2'"},
        {"3*( 1)(2 )", "! Too many )s in '1)(2'"},
        {"1/0", "! Division by zero"},
        {"0/0", "! Overflow"},
        {"1\\0", "! Division by zero"},
        {"1%0.4", "! Division by zero"},
        {"0^-1", "! Invalid procedure call or argument"},
        {"(0-8)^0.5", "! Invalid procedure call or argument"},
        {"1e300*1e300", "! Overflow"},
        {"10^400", "! Overflow"},
        {"EXP(1000)", "! Overflow"},
        {"SQR(0-1)", "! Invalid procedure call or argument"},
        {"LOG(0)", "! Invalid procedure call or argument"},
        {"SIN(1)(2)", "! Too many )s in '1)(2'"},
        {"SIN(abc)", "! Type mismatch"},
        {"abc+", "! Type mismatch"},
        {"-abc", "! Type mismatch"},
    };
    Expect(cases);
    // The first failure from the left is the one that is told, before anybody is asked further.
    EXPECT_EQ(Evaluate("1/0+GET(never)"), "! Division by zero");
    EXPECT_TRUE(host_.prompts.empty());
}

TEST_F(Expressions, ReadVariablesThroughTheirTextForm) {
    Set("x", Value::OfNumber(12));
    Set("zero", Value::OfNumber(0));
    Set("third", Value::OfNumber(1.0 / 3));
    Set("orcs", Value::OfText("3 orcs"));
    Set("name", Value::OfText("Ada"));
    Set("nothing", Value{});
    Set("yes", Value::OfTruth(true));
    Set("the name", Value::OfText("7"));
    // A 0 comes back as text, and texts are joined.
    const Cases cases = {
        {"x*2", "24"},       {"(3+x)*2", "30"},
        {"orcs", "3 orcs"},  {"orcs*2", "! Type mismatch"},
        {"name&x", "Ada12"}, {"zero+1", "1"},
        {"zero+zero", "00"}, {"third*3", "0.999999999999999"},
        {"nothing", ""},     {"yes=True", "True"},
        {"X", "X"},          {" the name + 1", "8"},
        {"x<5", "False"},
    };
    Expect(cases);
}

TEST_F(Expressions, AreToldFromText) {
    Set("plain", Value::OfNumber(1));
    for (const char* expression : {"well-known", "rnd(2)", "plain"}) {
        EXPECT_TRUE(IsExpression(expression, variables_)) << expression;
    }
    for (const char* text : {"3<4", "random", "#a-b#", "3(4)"}) {
        EXPECT_FALSE(IsExpression(text, variables_)) << text;
    }
    EXPECT_FALSE(IsHashQuoted("#"));
    EXPECT_TRUE(IsHashQuoted("##"));
}

TEST_F(Expressions, HaveNoDepthOrLengthThatHurts) {
    const std::string open = Repeated("(", 100'000);
    const std::string close = Repeated(")", 100'000);
    EXPECT_EQ(Evaluate("1" + Repeated("+1", 20'000)), "20001");
    EXPECT_EQ(Evaluate(open + "7" + close), "7");
    EXPECT_EQ(Evaluate("2*" + open + "1+1" + close + "-1"), "3");
    EXPECT_EQ(Evaluate(Repeated("-", 100'001) + "7"), "-7");
    EXPECT_EQ(Evaluate(Repeated("RND(", 20'000) + "2.4" + Repeated(")", 20'000)), "2");
    EXPECT_EQ(Evaluate("a" + Repeated("&a", 500'000)).size(), 500'001U);
}

}  // namespace
}  // namespace quenloft
