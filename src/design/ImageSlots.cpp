#include "design/ImageSlots.h"

#include <array>

namespace {

#define TARNWICK_SLOT_ROW(slot, tag, sending) ImageSlotRow{ImageSlot::slot, QLatin1StringView(tag), sending},
constexpr std::array<ImageSlotRow, ImageSlotCount> slotRows = {TARNWICK_IMAGE_SLOTS(TARNWICK_SLOT_ROW)};
#undef TARNWICK_SLOT_ROW

} // namespace

std::span<const ImageSlotRow> imageSlotTable()
{
    return slotRows;
}

QString tagOf(ImageSlot slot)
{
    return slotRows[static_cast<std::size_t>(slot)].tag;
}
