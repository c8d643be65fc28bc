// What data discs are made of: a folder, or an image file.
#pragma once

#include "base/Fd.h"
#include "drive/Burn.h"
#include "drive/Drive.h"
#include "image/IsoImage.h"

#include <memory>
#include <optional>
#include <string>

namespace engine::drive {

/// The content of a folder as an ISO 9660 image with Joliet and Rock Ridge names.
class FolderContent final : public DiscData {
public:
    /// Reads the folder. What was left out or renamed is told to options.note, and options.control can
    /// stop it.
    static Result<std::unique_ptr<DiscData>> read(const std::string &folder, const BurnOptions &options);

    std::uint64_t blocks() const override { return m_blocks; }
    Result<Read> start() override;

private:
    FolderContent(std::string folder, image::IsoImage image, Stop stop);

    std::string m_folder;
    std::shared_ptr<image::IsoImage> m_image;
    std::uint64_t m_blocks;
    bool m_streamed = false;
    Stop m_stop;
};

/// An image file as it is, filled to whole blocks with zeros.
class ImageContent final : public DiscData {
public:
    static Result<std::unique_ptr<DiscData>> open(const std::string &path);

    std::uint64_t blocks() const override { return (m_size + blockBytes - 1) / blockBytes; }
    Result<Read> start() override;

private:
    ImageContent(std::string path, Fd file, std::uint64_t size);

    std::string m_path;
    std::shared_ptr<const Fd> m_file;
    std::uint64_t m_size;
};

} // namespace engine::drive
