// The variables of one generation, in the order in which they were first set.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "engine/text_map.h"
#include "engine/value.h"

namespace quenloft {

class VariableStore {
  public:
    enum class Operation { Set, Increase };

    /// Names compare exactly. Null where there is none; valid until the next change.
    const Value* Find(std::string_view name) const;
    /// Increase adds to the stored value (Add, engine/value.h), an unknown name starts at `value`.
    /// Throws Failure, and RunStopped for a value past kLargestOutput.
    void SetVariable(std::string_view name, const Value& value, Operation operation);
    /// Every name that begins with `group` without it, "=", the value and a line break.
    std::string ListGroup(std::string_view group) const;
    void Clear();

  private:
    std::vector<std::pair<std::string, Value>> inOrder_;
    std::unordered_map<std::string, std::size_t, TextHash, TextEqual> places_;
};

}  // namespace quenloft
