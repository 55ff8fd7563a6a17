#pragma once

namespace orvendal {

enum class CursorShape { kArrow, kText };

}  // namespace orvendal
