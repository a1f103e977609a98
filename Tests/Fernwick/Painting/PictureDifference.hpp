#pragma once

#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <ostream>

/// The difference between two pictures of the same size, in steps of 1/255 of a channel.
struct PictureDifference {
    double mean = 0;
    /// The largest difference of a channel, and where it is. Two antialiasing algorithms may
    /// differ on a pixel by up to half of the contrast around it; such differences do not count.
    int largest = 0;
    QPoint position;

    friend std::ostream& operator<<(std::ostream& out, const PictureDifference& difference) {
        return out << "mean " << difference.mean << ", largest " << difference.largest << " at ("
                   << difference.position.x() << ", " << difference.position.y() << ")";
    }
};

[[nodiscard]] inline int channelOf(const QImage& picture, int x, int y, int shift) {
    return static_cast<int>((picture.pixel(x, y) >> shift) & 0xFFU);
}

/// The range of a channel over a pixel and its neighbours.
[[nodiscard]] inline int localContrast(const QImage& picture, int x, int y, int shift) {
    int low = 255;
    int high = 0;
    for (int row = std::max(y - 1, 0); row <= std::min(y + 1, picture.height() - 1); ++row) {
        for (int column = std::max(x - 1, 0); column <= std::min(x + 1, picture.width() - 1);
             ++column) {
            const int value = channelOf(picture, column, row, shift);
            low = std::min(low, value);
            high = std::max(high, value);
        }
    }
    return high - low;
}

[[nodiscard]] inline PictureDifference difference(const QImage& actual, const QImage& expected) {
    PictureDifference found;
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            for (const int shift : {16, 8, 0}) {
                const int apart =
                    std::abs(channelOf(actual, x, y, shift) - channelOf(expected, x, y, shift));
                found.mean += apart;
                if (apart > found.largest && apart > localContrast(expected, x, y, shift) / 2) {
                    found.largest = apart;
                    found.position = {x, y};
                }
            }
        }
    }
    found.mean /= 3.0 * expected.width() * expected.height();
    return found;
}
