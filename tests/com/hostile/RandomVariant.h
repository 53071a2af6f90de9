#pragma once

#include <deque>
#include <functional>
#include <string>

#include "com/edge/ComObject.h"
#include "com/edge/Conversion.h"
#include "doubles/Random.h"

namespace tsln::test {

/// Makes values of every kind that the platform knows, valid ones and damaged ones: texts of any length with any
/// characters, numbers at their limits, arrays, objects, references to nothing and chains of references, one of
/// them without an end. What they refer to lives as long as the maker.
class RandomVariant {
  public:
    /// `object` gives an object for values that are one; it may return null.
    RandomVariant(Random& chance, std::function<com::ComPtr<IDispatch>()> object)
        : chance_(chance), object_(std::move(object)) {}

    /// A value that its owner clears with VariantClear(). `out` is not cleared before.
    void value(VARIANT& out, int depth = 0);
    /// A value or a reference for an argument. It belongs to this maker.
    VARIANT argument();
    /// A text, for the caller to free; also null.
    BSTR text();

  private:
    void array(VARIANT& out, int depth);
    VARIANT reference();

    Random& chance_;
    std::function<com::ComPtr<IDispatch>()> object_;
    std::deque<com::OwnedVariant> values_;
    std::deque<VARIANT> links_;
};

}  // namespace tsln::test
