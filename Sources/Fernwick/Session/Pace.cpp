#include "Session/Pace.hpp"

#include <QCoreApplication>
#include <algorithm>
#include <cstddef>
#include <iterator>

namespace {

struct PaceRow {
    const char* rawValue;
    std::chrono::milliseconds tickInterval;
};

using std::chrono_literals::operator""ms;

//: The three speeds, each a short word of its own: slow, as usual, fast.
constexpr std::array<PaceRow, allPaces.size()> rows{{
    {QT_TRANSLATE_NOOP("Pace", "Gentle"), 190ms},
    {QT_TRANSLATE_NOOP("Pace", "Classic"), 130ms},
    {QT_TRANSLATE_NOOP("Pace", "Swift"), 85ms},
}};

const PaceRow& rowOf(Pace pace) {
    return rows.at(static_cast<std::size_t>(pace));
}

}  // namespace

std::string_view rawValue(Pace pace) {
    return rowOf(pace).rawValue;
}

std::optional<Pace> paceFromRawValue(std::string_view text) {
    const auto* const found = std::ranges::find(allPaces, text, rawValue);
    return found == allPaces.end() ? std::nullopt : std::optional(*found);
}

std::chrono::milliseconds tickInterval(Pace pace) {
    return rowOf(pace).tickInterval;
}

QString bestKey(Pace pace) {
    return QStringLiteral("best-") + QString::fromUtf8(rowOf(pace).rawValue);
}

QString displayName(Pace pace) {
    return QCoreApplication::translate("Pace", rowOf(pace).rawValue);
}

QStringList paceNames() {
    QStringList names;
    std::ranges::transform(allPaces, std::back_inserter(names), displayName);
    return names;
}
