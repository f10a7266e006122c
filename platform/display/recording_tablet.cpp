#include "platform/display/recording_tablet.h"

void gkRecordingTablet::Record::replay(gkUITablet& tablet) const {
    const std::vector<double>& n = numbers;
    switch (kind) {
    case eLineSeg:
        tablet.drawLineSeg({n[0], n[1]}, {n[2], n[3]}, color, layers);
        break;
    case eCircle:
        tablet.drawCircle({n[0], n[1]}, n[2], color, layers);
        break;
    case eEllipse:
        tablet.drawEllipse({n[0], n[1]}, {n[2], n[3]}, gkRadian(n[4]), color, layers);
        break;
    case ePoint:
        tablet.drawPoint({n[0], n[1]}, color, layers);
        break;
    case eText:
        tablet.drawText({n[0], n[1]}, text, n[2], color, layers);
        break;
    case eImage:
        tablet.drawImage({n[0], n[1]}, {n[2], n[3]}, pngBytes, layers);
        break;
    }
}

gkRecordingTablet::gkRecordingTablet() = default;

gkRecordingTablet::gkRecordingTablet(const gkRecordingTablet& other) = default;

gkRecordingTablet& gkRecordingTablet::operator=(const gkRecordingTablet& other) = default;

gkRecordingTablet::~gkRecordingTablet() = default;

const std::vector<gkRecordingTablet::Record>& gkRecordingTablet::records() const { return records_; }

void gkRecordingTablet::clear() { records_.clear(); }

void gkRecordingTablet::replay(gkUITablet& tablet) const {
    for (const Record& record : records_) record.replay(tablet);
}

void gkRecordingTablet::drawLineSeg(const gkPair<double>& from, const gkPair<double>& to, const gkColor& color,
                                    const Layers& layers) {
    records_.push_back({eLineSeg, {from.x(), from.y(), to.x(), to.y()}, color, layers, {}, {}});
}

void gkRecordingTablet::drawCircle(const gkPair<double>& center, double radius, const gkColor& color,
                                   const Layers& layers) {
    records_.push_back({eCircle, {center.x(), center.y(), radius}, color, layers, {}, {}});
}

void gkRecordingTablet::drawEllipse(const gkPair<double>& center, const gkPair<double>& radii,
                                    const gkRadian& rotation, const gkColor& color, const Layers& layers) {
    records_.push_back(
        {eEllipse, {center.x(), center.y(), radii.x(), radii.y(), rotation.toDouble()}, color, layers, {}, {}});
}

void gkRecordingTablet::drawPoint(const gkPair<double>& position, const gkColor& color, const Layers& layers) {
    records_.push_back({ePoint, {position.x(), position.y()}, color, layers, {}, {}});
}

void gkRecordingTablet::drawText(const gkPair<double>& position, const std::string& text, double height,
                                 const gkColor& color, const Layers& layers) {
    records_.push_back({eText, {position.x(), position.y(), height}, color, layers, text, {}});
}

void gkRecordingTablet::drawImage(const gkPair<double>& origin, const gkPair<double>& size,
                                  const std::vector<unsigned char>& pngBytes, const Layers& layers) {
    records_.push_back({eImage, {origin.x(), origin.y(), size.x(), size.y()}, gkColor(), layers, {}, pngBytes});
}
