#include "platform/qt/qt_file_filter.h"

#include "platform/qt/qt_text.h"

namespace quenloft {
namespace {

// "*.*" in the toolkit hides names without a dot; here it has always meant every file.
QString ToolkitPatterns(const QString& patterns) {
    QStringList parts = patterns.split(u';', Qt::SkipEmptyParts);
    for (QString& part : parts) {
        part = part.trimmed();
        if (part == QLatin1String("*.*")) {
            part = QStringLiteral("*");
        }
    }
    return parts.join(u' ');
}

QString WithoutPatterns(const QString& caption) {
    const qsizetype open = caption.lastIndexOf(u'(');
    const bool shown = open > 0 && caption.trimmed().endsWith(u')');
    return (shown ? caption.left(open) : caption).trimmed();
}

}  // namespace

QStringList ToNameFilters(std::string_view filter) {
    const QStringList fields = ToQt(filter).split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
        filters << QStringLiteral("%1 (%2)").arg(WithoutPatterns(fields[i]),
                                                 ToolkitPatterns(fields[i + 1]));
    }
    return filters;
}

QString SuffixOf(const QString& nameFilter) {
    const QString patterns = nameFilter.section(u'(', -1).section(u')', 0, 0);
    const QString first = patterns.section(u' ', 0, 0);
    return first.startsWith(QLatin1String("*.")) ? first.mid(2) : QString();
}

}  // namespace quenloft
