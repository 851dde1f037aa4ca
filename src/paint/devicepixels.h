// Maps between the pixels of a widget and those of the device, where the screen's scale is no whole
// number. A device pixel shows the widget's pixel that contains its middle, and on an edge the one
// before. Qt rounds the edges of what it fills in the same way.
#pragma once

class QRect;
class QTransform;

namespace terramark::paint {

/// The pixels of the device that show an area. The transform may move and enlarge, but not rotate.
QRect MapToDevice(const QTransform& toDevice, const QRect& area);

/// In one direction, the widget's pixel that a device pixel shows. `scale` is the number of device
/// pixels for one of the widget's, `origin` where the widget's pixel 0 begins on the device.
int MapFromDevice(int onDevice, double scale, double origin);

}  // namespace terramark::paint
