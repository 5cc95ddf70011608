#include "golden_picture.h"

#include "support/golden.h"

#include <QBuffer>

namespace dorvan::test {

namespace {

std::string pngOf(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

// Where two pictures of one size differ first, or nothing.
std::string differenceOf(const QImage& actual, const QImage& golden) {
    for (int y = 0; y < golden.height(); ++y)
        for (int x = 0; x < golden.width(); ++x)
            if (actual.pixel(x, y) != golden.pixel(x, y))
                return "pixel (" + std::to_string(x) + ", " + std::to_string(y) + ") is " +
                       QColor(actual.pixel(x, y)).name().toStdString() + " instead of " +
                       QColor(golden.pixel(x, y)).name().toStdString();
    return {};
}

} // namespace

::testing::AssertionResult matchesGoldenPicture(const QImage& actual, const std::string& name) {
    const QImage golden = QImage::fromData(QByteArray::fromStdString(goldenBytes(name)), "PNG");
    std::string difference;
    if (golden.size() != actual.size())
        difference = "size " + std::to_string(actual.width()) + " x " + std::to_string(actual.height());
    else
        difference = differenceOf(actual, golden);
    if (difference.empty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << difference << "\n"
                                         << matchesGolden(pngOf(actual), name).message();
}

} // namespace dorvan::test
