#pragma once

#include <memory>

#include "platform/forms/canvas.h"

namespace orvendal {

/// The picture behind the action bar: 1149 x 770 pixels in 85 colours, pure decoration. Made once and shared.
std::shared_ptr<const Bitmap> BackgroundBitmap();

}  // namespace orvendal
