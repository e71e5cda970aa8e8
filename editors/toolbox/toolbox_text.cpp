#include "editors/toolbox/toolbox_text.h"

#include "engine/numbers.h"
#include "engine/table_file.h"

namespace quenloft {

std::string DiceMark(const DiceBoxes& boxes) {
    std::string mark = "@" + std::to_string(NumericValue(boxes.number)) + "d" +
                       std::to_string(NumericValue(boxes.sides));
    const std::int32_t add = NumericValue(boxes.add);
    if (add != 0) {
        mark += (add > 0 ? "+" : "") + std::to_string(add);
    }
    return mark + (boxes.openEnded ? "~@" : "@");
}

std::string VariableMark(std::string_view name) {
    return std::string(kVariableMark).append(name).append(kVariableMark);
}

std::string ReferenceMark(std::string_view name, NameCase nameCase, std::string_view repeat) {
    return ReferenceText(InNameCase(nameCase, name), NumericValue(repeat), kRepeatMark);
}

}  // namespace quenloft
