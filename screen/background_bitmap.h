#pragma once

#include <memory>

#include "platform/forms/canvas.h"

namespace orvendal {

/// The picture behind the action bar: 1149 x 770 pixels in 85 colours, pure decoration. It fades
/// to white at its right and lower edge. Made once and shared.
std::shared_ptr<const Bitmap> BackgroundBitmap();

}  // namespace orvendal
