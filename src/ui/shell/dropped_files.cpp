#include "shell/dropped_files.h"

#include "base/stored_path.h"

#include <QFileInfo>
#include <QImageReader>
#include <QMimeData>
#include <QRegularExpression>
#include <QUrl>

#include <array>
#include <vector>

namespace shell {

namespace {

using Slot = std::string DroppedFiles::*;

bool is_province_file(const QFileInfo& file) {
    return file.suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0;
}

bool is_image(const QFileInfo& file) {
    return QImageReader::supportedImageFormats().contains(file.suffix().toLower().toLatin1());
}

/// Returns which map the file's name says it is; none when it says nothing.
Slot named_map(const QString& name) {
    static const QRegularExpression id_map(QStringLiteral("(^|[^a-z])id|id([^a-z]|$)|prov"));
    const QString lower = name.toLower();
    if (lower.contains(id_map))
        return &DroppedFiles::id_map;
    if (lower.contains('2'))
        return &DroppedFiles::map_2;
    if (lower.contains('1'))
        return &DroppedFiles::map_1;
    return nullptr;
}

/// Gives the images their places: first where their names say, then what is left in its order. Map
/// 2 is the one that may be missing.
void place_images(const std::vector<QFileInfo>& images, DroppedFiles& dropped) {
    std::vector<std::string> unnamed;
    for (const auto& image : images) {
        std::string path = base::stored_path(image.absoluteFilePath());
        const Slot named = named_map(image.completeBaseName());
        if (named && (dropped.*named).empty())
            dropped.*named = std::move(path);
        else
            unnamed.push_back(std::move(path));
    }
    std::array<Slot, 3> order = {&DroppedFiles::map_1, &DroppedFiles::map_2, &DroppedFiles::id_map};
    if (images.size() < order.size())
        std::swap(order[1], order[2]);
    auto next = unnamed.begin();
    for (const Slot place : order) {
        if ((dropped.*place).empty() && next != unnamed.end())
            dropped.*place = std::move(*next++);
    }
}

} // namespace

std::optional<DroppedFiles> dropped_files(const QStringList& files) {
    constexpr std::size_t most_images = 3;
    DroppedFiles dropped;
    std::vector<QFileInfo> images;
    for (const auto& name : files) {
        const QFileInfo file(name);
        if (!file.isFile())
            return {};
        if (is_province_file(file) && dropped.province_file.empty())
            dropped.province_file = base::stored_path(file.absoluteFilePath());
        else if (is_image(file) && images.size() < most_images)
            images.push_back(file);
        else
            return {};
    }
    if (files.isEmpty())
        return {};
    place_images(images, dropped);
    return dropped;
}

std::optional<DroppedFiles> dropped_files(const QMimeData& data) {
    QStringList files;
    for (const auto& url : data.urls())
        files += url.toLocalFile(); // empty, which is no file, for what is elsewhere
    return dropped_files(files);
}

} // namespace shell
