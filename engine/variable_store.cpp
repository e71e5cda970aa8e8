#include "engine/variable_store.h"

#include "engine/failure.h"
#include "engine/limits.h"
#include "engine/text_helpers.h"

namespace quenloft {

const Value* VariableStore::Find(std::string_view name) const {
    const auto place = places_.find(name);
    return place == places_.end() ? nullptr : &inOrder_[place->second].second;
}

void VariableStore::SetVariable(std::string_view name, const Value& value, Operation operation) {
    const auto place = places_.find(name);
    if (place == places_.end()) {
        places_.emplace(name, inOrder_.size());
        inOrder_.emplace_back(name, value);
        return;
    }
    Value& stored = inOrder_[place->second].second;
    if (operation == Operation::Increase) {
        stored = Add(std::move(stored), value);
    } else {
        stored = value;
    }
}

std::string VariableStore::ListGroup(std::string_view group) const {
    std::string lines;
    for (const auto& [name, value] : inOrder_) {
        if (name.starts_with(group)) {
            lines.append(name, group.size())
                .append("=")
                .append(value.TextForm())
                .append(kLineBreak);
            CheckOutputSize(lines.size());
        }
    }
    return lines;
}

void VariableStore::Clear() {
    inOrder_.clear();
    places_.clear();
}

}  // namespace quenloft
