#include "report/DriveList.h"

#include <algorithm>

namespace engine::report {

namespace {

std::string printable(std::string text)
{
    std::ranges::replace_if(
        text, [](char c) { return c < 0x20 || c > 0x7e; }, '?');
    return text;
}

std::string column(const std::string &text, std::size_t width)
{
    std::string cell = printable(text.substr(0, width));
    cell.resize(width, ' ');
    return cell;
}

// The gaps between the cells are part of the format: 3, 12, 30, 36, 46.
std::string line(const std::string &number, const DriveRecord &d)
{
    std::string text = column(number, 3) + column(d.vendor, 8) + ' ' + column(d.product, 16) + "  "
        + column(d.revision, 4) + "  " + column(d.bus, 8) + "  " + column(d.support, d.support.size());
    text.erase(text.find_last_not_of(' ') + 1);
    text.resize(std::max<std::size_t>(text.size(), 30), ' ');
    return text + '\n';
}

} // namespace

std::string driveTitle(const DriveRecord &drive)
{
    const std::string gap = drive.vendor.empty() || drive.product.empty() ? "" : " ";
    return printable(drive.vendor + gap + drive.product);
}

std::string driveListText(const std::vector<DriveRecord> &drives)
{
    std::string text = line("", { "Vendor", "Product", "Rev", "Bus", "SupportLevel" });
    for (std::size_t i = 0; i < std::min(drives.size(), maximumDrives); ++i)
        text += line(std::string(1, driveNumber(i)), drives[i]);
    return text;
}

} // namespace engine::report
