// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Platform/Kept/ImageBytes.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quillon {

void ImageSink::handOnPieces() {
    std::string_view left = buffer;
    for (; left.size() >= pieceSize; left.remove_prefix(pieceSize)) {
        take(left.substr(0, pieceSize));
    }
    buffer.erase(0, buffer.size() - left.size());
}

void ImageSink::finish() {
    if (!buffer.empty()) {
        take(std::exchange(buffer, {}));
    }
}

std::optional<std::uint64_t> ImageSource::number() {
    std::uint64_t value = 0;
    for (unsigned shift = 0; shift < 64 && !rest.empty(); shift += 7) {
        const auto byte = static_cast<unsigned char>(rest.front());
        rest.remove_prefix(1);
        value |= static_cast<std::uint64_t>(byte & 0x7FU) << shift;
        if (byte < 0x80) {
            return value;
        }
    }
    rest = {};
    return std::nullopt;
}

std::optional<std::string_view> ImageSource::text() {
    const auto length = number();
    return length ? bytes(*length) : std::nullopt;
}

std::optional<std::string_view> ImageSource::bytes(std::uint64_t count) {
    if (count > rest.size()) {
        rest = {};
        return std::nullopt;
    }
    const std::string_view taken = rest.substr(0, count);
    rest.remove_prefix(count);
    return taken;
}

std::uint64_t checkSum(std::uint64_t sum, std::string_view piece) {
    const auto mix = [](std::uint64_t value, std::uint64_t word) {
        value = (value ^ word) * 0x9E3779B97F4A7C15U;
        return value ^ (value >> 32U);
    };
    sum = mix(sum, piece.size());
    while (!piece.empty()) {
        std::uint64_t word = 0;
        const std::size_t count = std::min(piece.size(), sizeof word);
        std::memcpy(&word, piece.data(), count);
        sum = mix(sum, word);
        piece.remove_prefix(count);
    }
    return sum;
}

std::uint64_t checkSumOfAll(std::string_view bytes) {
    std::uint64_t sum = 0;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(bytes.size(), ImageSink::pieceSize))) {
        sum = checkSum(sum, bytes.substr(0, ImageSink::pieceSize));
    }
    return sum;
}

}  // namespace quillon
