// An expression, with variables of every kind.
#include "engine/expression.h"
#include "engine/failure.h"
#include "tests/fuzz/fuzz.h"
#include "tests/support/fake_host.h"

void quenloft::Fuzz(std::string_view input) {
    static FakeHost host;
    host.messages.clear();
    host.prompts.clear();
    static const VariableStore variables = [] {
        VariableStore store;
        const auto set = [&store](const char* name, const Value& value) {
            store.SetVariable(name, value, VariableStore::Operation::Set);
        };
        set("x", Value::OfNumber(3.5));
        set("gold", Value::OfText("12"));
        set("name", Value::OfText("Ada"));
        set("now", Value::Now());
        return store;
    }();
    IsExpression(input, variables);
    try {
        EvaluateExpr(input, variables, host);
    } catch (const Failure&) {
    }
}
