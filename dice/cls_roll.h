// A handful of dice, counted by kind.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quenloft {

/// The kinds of dice that a handful may hold, by their faces.
inline constexpr std::array<std::int32_t, 7> kDieKinds = {2, 4, 6, 8, 10, 12, 20};

class clsRoll {
  public:
    /// All counts to 0.
    void Reset();
    /// Adds the dice that `text` names: "D10+d10+D12". A name of no kind is ignored, and so is one
    /// with blanks or the last one of a text that ends in "+".
    void FillValue(std::string_view text);

    /// `kind` is a place in kDieKinds.
    std::int32_t Count(std::size_t kind) const { return counts_.at(kind); }
    void SetCount(std::size_t kind, std::int32_t count) { counts_.at(kind) = count; }

    /// "2D10+1D12": every kind that there are dice of. Empty for an empty hand.
    std::string Text() const;

  private:
    std::array<std::int32_t, kDieKinds.size()> counts_{};
};

}  // namespace quenloft
