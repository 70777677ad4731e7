#include "controls/tabsheet/TabSheetModel.h"

#include <algorithm>

namespace corvex {

namespace {

constexpr int kClientHit = 1;

struct FramePart {
    int hit;
    unsigned lock;
};
// The system's codes of the frame's parts; the bits are the sheet's own.
constexpr FramePart kFrameParts[] = {
    {12, 0x01},  // top
    {15, 0x02},  // bottom
    {10, 0x04},  // left
    {11, 0x08},  // right
    {13, 0x10},  // top left
    {14, 0x20},  // top right
    {16, 0x40},  // bottom left
    {17, 0x80},  // bottom right
};

}  // namespace

int LockedHit(int hit, unsigned locks) {
    for (const FramePart& part : kFrameParts) {
        if (part.hit == hit && (locks & part.lock) != 0) return kClientHit;
    }
    return hit;
}

int TabPlace(int wanted, int count) {
    return wanted < 0 || wanted > count ? count : wanted;
}

int TabAfterRemoval(int removed, int remaining) {
    return std::min(std::max(removed, 0), remaining - 1);
}

PageBox BoxOfEdges(int left, int top, int right, int bottom) {
    return {left, top, std::max(right - left, 0), std::max(bottom - top, 0)};
}

}  // namespace corvex
