// What the pixels of a device show of a widget, where the screen's scale is no whole number: each
// shows what its middle lies in, and what comes before when that is an edge. So does Qt round the
// edges of what it fills.
#pragma once

class QRect;
class QTransform;

namespace terramark::paint {

/// The pixels of the device that show an area. The transform may move and enlarge, not turn.
QRect MapToDevice(const QTransform& toDevice, const QRect& area);

/// In one direction, the pixel that one of the device shows. Scale is how many of the device one
/// measures, and origin where pixel 0 begins on the device.
int MapFromDevice(int onDevice, double scale, double origin);

}  // namespace terramark::paint
