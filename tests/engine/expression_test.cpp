#include "engine/expression.h"

#include <gtest/gtest.h>
#include <optional>

#include "engine/failure.h"
#include "tests/support/fake_host.h"

namespace quenloft {
namespace {

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
    void Set(const std::string& name, const Value& value) {
        variables_.SetVariable(name, value, VariableStore::Operation::Set);
    }

    VariableStore variables_;
    FakeHost host_;
};

TEST_F(Expressions, GroupByPriorityAndFromTheLeft) {
    const struct {
        const char* text;
        const char* value;
    } cases[] = {
        {"", ""},
        {"   ", ""},
        {"()", ""},
        {"(3+4)*2", "14"},
        {"3+4*2", "11"},
        {"10-2-3", "5"},
        {"2^3^2", "64"},
        {"2*3^2", "18"},
        {"100/10/5", "2"},
        {"7\\2*2", "1"},  // "*" binds tighter than "\".
        {"7%4\\2", "1"},  // "\" binds tighter than "%".
        {"8%3+1", "3"},
        {"-2^2", "4"},
        {"2*-3", "-6"},
        {"2--3", "5"},
        {"2-+-3", "5"},
        {"--5", "5"},
        {"-(2+3)", "-5"},
        {"- 5", "-5"},
        {"2**3", "0"},  // An empty operand counts as 0.
        {"5-", "5"},
        {"*", "0"},
        {"-", "0"},
        {"0*-1", "0"},
        {"1/3", "0.333333333333333"},
        {"7.5\\2", "4"},
        {"6.5\\2", "3"},
        {"2.5\\1", "2"},
        {"-7%3", "-1"},
        {"5000000000%3000000000", "2000000000"},
        {"9000000000\\2", "4500000000"},
        {"1+(2*(3+(4)))", "15"},
        {" ( 1 + 2 ) * 3 ", "9"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Evaluate(c.text), c.value) << c.text;
    }
}

TEST_F(Expressions, CompareAtThePriorityOfPlus) {
    const struct {
        const char* text;
        const char* value;
    } cases[] = {
        {"1<2", "True"},     {"1<=2", "True"},     {"2>=3", "False"}, {"2>=2", "True"},
        {"3>2", "True"},     {"1=1", "True"},      {"1<2+3", "2"},    {"1<=2+3", "2"},
        {"abc<abd", "True"}, {"Z<a", "True"},      {"5<abc", "True"}, {"abc<5", "False"},
        {"abc=abc", "True"}, {"abc=ABC", "False"}, {"1==2", "False"}, {"=5", "=5"},
        {"0=", "True"},      {"abc=", "False"},    {"1<", "False"},   {"1<2<3", "True"},
        {"1 <= 2", "True"},  {"3&4", "34"},        {"3&4+1", "35"},   {"a&b&c", "abc"},
        {"1=1=-1", "True"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Evaluate(c.text), c.value) << c.text;
    }
}

TEST_F(Expressions, TextStandsForItself) {
    const struct {
        const char* text;
        const char* value;
    } cases[] = {
        {"abc", "abc"},
        {"abc+def", "abcdef"},
        {"abc+", "! Type mismatch"},
        {"abc*2", "! Type mismatch"},
        {"-abc", "! Type mismatch"},
        {"PI*2", "! Type mismatch"},
        {"5 gold", "5 gold"},
        {"$5*2", "10"},
        {"1,000+1", "1001"},
        {"SIN()", "SIN()"},
        {"FOO(30)", "FOO(30)"},
        {"xSIN(30)", "xSIN(30)"},
        {"1 2", "1 2"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Evaluate(c.text), c.value) << c.text;
    }
}

TEST_F(Expressions, CallTheTenFunctions) {
    const struct {
        const char* text;
        const char* value;
    } cases[] = {
        {"sin(30)", "0.5"},
        {"SIN(30)*2", "1"},
        {"-SIN(30)", "-0.5"},
        {"COS(60)", "0.5"},
        {"TAN(45)", "1"},
        {"SIN(10+20)", "0.5"},
        {"SQR(16)", "4"},
        {"SQR(0-1)", "! Invalid procedure call or argument"},
        {"rnd(2.5)", "2"},
        {"RND(3.5)", "4"},
        {"LOG(1)", "0"},
        {"LOG(0)", "! Invalid procedure call or argument"},
        {"EXP(0)", "1"},
        {"EXP(1000)", "! Overflow"},
        {"VAL(12abc)", "12"},
        {"VAL(abc)", "0"},
        {"VAL(2&3)", "23"},
        {"SQR(SQR(16))", "2"},
        {"SIN(1)(2)", "! Too many )s in '1)(2'"},
        {"SIN(abc)", "! Type mismatch"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Evaluate(c.text), c.value) << c.text;
    }
}

TEST_F(Expressions, AskAndTellWithTheirArgumentAsWritten) {
    host_.answers = {"12", "Ada"};
    EXPECT_EQ(Evaluate("GET(How many?)+1"), "13");
    EXPECT_EQ(Evaluate("GET( 1+1 )"), "Ada");
    EXPECT_EQ(Evaluate("MSG(3*3)"), "1");
    EXPECT_EQ(host_.prompts, (std::vector<std::string>{"How many?", " 1+1 "}));
    EXPECT_EQ(host_.messages, std::vector<std::string>{"3*3"});
}

TEST_F(Expressions, FailWithACause) {
    const struct {
        const char* text;
        const char* failure;
    } cases[] = {
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
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Evaluate(c.text), c.failure) << c.text;
    }
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
    EXPECT_EQ(Evaluate("x*2"), "24");
    EXPECT_EQ(Evaluate("(3+x)*2"), "30");
    EXPECT_EQ(Evaluate("orcs"), "3 orcs");
    EXPECT_EQ(Evaluate("orcs*2"), "! Type mismatch");
    EXPECT_EQ(Evaluate("name&x"), "Ada12");
    EXPECT_EQ(Evaluate("zero+1"), "1");
    EXPECT_EQ(Evaluate("zero+zero"), "00");  // A 0 comes back as text, and texts are joined.
    EXPECT_EQ(Evaluate("third*3"), "0.999999999999999");
    EXPECT_EQ(Evaluate("nothing"), "");
    EXPECT_EQ(Evaluate("yes=True"), "True");
    EXPECT_EQ(Evaluate("X"), "X");
    EXPECT_EQ(Evaluate(" the name + 1"), "8");
    EXPECT_EQ(Evaluate("x<5"), "False");
}

TEST_F(Expressions, AreToldFromText) {
    Set("plain", Value::OfNumber(1));
    EXPECT_TRUE(IsExpression("well-known", variables_));
    EXPECT_TRUE(IsExpression("rnd(2)", variables_));
    EXPECT_TRUE(IsExpression("plain", variables_));
    EXPECT_FALSE(IsExpression("3<4", variables_));
    EXPECT_FALSE(IsExpression("random", variables_));
    EXPECT_FALSE(IsExpression("#a-b#", variables_));
    EXPECT_FALSE(IsExpression("3(4)", variables_));
    EXPECT_FALSE(IsHashQuoted("#"));
    EXPECT_TRUE(IsHashQuoted("##"));
}

TEST_F(Expressions, HaveNoDepthOrLengthThatHurts) {
    std::string sum = "1";
    for (int i = 0; i < 20000; ++i) {
        sum += "+1";
    }
    EXPECT_EQ(Evaluate(sum), "20001");
    const std::string open(100000, '(');
    EXPECT_EQ(Evaluate(open + "7" + std::string(100000, ')')), "7");
    EXPECT_EQ(Evaluate("2*" + open + "1+1" + std::string(100000, ')') + "-1"), "3");
    EXPECT_EQ(Evaluate(std::string(100001, '-') + "7"), "-7");
    std::string nested;
    for (int i = 0; i < 20000; ++i) {
        nested += "RND(";
    }
    EXPECT_EQ(Evaluate(nested + "2.4" + std::string(20000, ')')), "2");
    std::string joined = "a";
    while (joined.size() < 1000000) {
        joined += "&a";
    }
    EXPECT_EQ(Evaluate(joined).size(), joined.size() / 2 + 1);
}

}  // namespace
}  // namespace quenloft
