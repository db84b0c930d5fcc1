// A question that work on files asks its user: true for Yes. Without one the answer is No.
#pragma once

#include <functional>
#include <string>

namespace kestview {

using Question = std::function<bool(const std::string& text)>;

}  // namespace kestview
