// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// Takes the numbers and texts of which an image of a log is made and hands their bytes on in pieces, so that
/// no log needs to lie in memory twice.
class ImageSink {
  public:
    /// All pieces but the last have this size.
    static constexpr std::size_t pieceSize = 1'048'576;

    explicit ImageSink(std::function<void(std::string_view piece)> takePiece) : take(std::move(takePiece)) {}

    void number(std::uint64_t value) {
        while (value >= 0x80) {
            buffer.push_back(static_cast<char>(value | 0x80U));
            value >>= 7U;
        }
        buffer.push_back(static_cast<char>(value));
        handOn();
    }
    /// With its length in front.
    void text(std::string_view value) {
        number(value.size());
        bytes(value);
    }
    void bytes(std::string_view value) {
        buffer.append(value);
        handOn();
    }
    /// Hands on what is left; nothing may follow.
    void finish();

  private:
    void handOn() {
        if (buffer.size() >= pieceSize) {
            handOnPieces();
        }
    }
    void handOnPieces();

    std::function<void(std::string_view piece)> take;
    std::string buffer;
};

/// Reads what a sink has taken, in the same order. Where the bytes are others, everything is absent from
/// there on.
class ImageSource {
  public:
    explicit ImageSource(std::string_view imageBytes) : rest(imageBytes) {}

    std::optional<std::uint64_t> number();
    /// Good as long as the bytes are.
    std::optional<std::string_view> text();
    std::optional<std::string_view> bytes(std::uint64_t count);
    bool isAtEnd() const { return rest.empty(); }

  private:
    std::string_view rest;
};

/// A number that tells damaged bytes from whole ones, of pieces as a sink hands them on: `sum` is what the
/// piece before gave, 0 for the first. No protection against somebody who means harm.
std::uint64_t checkSum(std::uint64_t sum, std::string_view piece);
/// The same of all bytes at once.
std::uint64_t checkSumOfAll(std::string_view bytes);

}  // namespace quillon
