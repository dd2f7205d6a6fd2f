#include "ResourceCheck/svg/SvgPaints.h"

namespace ResourceCheck
{

namespace
{

// The ID in `url(#id)`; empty for any other form.
QString idOf(const QString& value)
{
    const QString inner = value.mid(value.indexOf(QLatin1Char('(')) + 1).trimmed();
    const int end = inner.indexOf(QLatin1Char(')'));
    return inner.startsWith(QLatin1Char('#')) && end > 0 ? inner.mid(1, end - 1) : QString();
}

} // namespace

bool SvgPaints::define(const QString& id, const QString& link, qint64 offset)
{
    if (id.isEmpty())
        return true;
    const bool isNew = !paints.contains(id);
    if (isNew)
        paints.insert(id, {link, offset});
    return isNew;
}

void SvgPaints::refer(const QString& value, qint64 offset)
{
    if (value.startsWith(QLatin1String("url")))
        references.append({value, offset});
}

void SvgPaints::followLinks(const QString& id, QSet<QString>& followed, QVector<SvgFault>& found) const
{
    QSet<QString> chain;
    for (QString current = id; !followed.contains(current);) {
        followed.insert(current);
        chain.insert(current);
        const Paint paint = paints.value(current);
        if (paint.link.isEmpty())
            return;
        if (chain.contains(paint.link)) {
            found.append({SvgFault::Kind::Reference, paint.offset,
                          QStringLiteral("the gradient takes its stops from itself by \"#%1\"; add <stop> elements")
                              .arg(paint.link)});
        } else if (!paints.contains(paint.link)) {
            found.append({SvgFault::Kind::Reference, paint.offset,
                          QStringLiteral("\"#%1\" is not a gradient; correct the reference or add the gradient")
                              .arg(paint.link)});
            return;
        }
        current = paint.link;
    }
}

QVector<SvgFault> SvgPaints::faults() const
{
    QVector<SvgFault> found;
    QSet<QString> followed;
    for (const Reference& reference : references) {
        const QString id = idOf(reference.value);
        if (paints.contains(id)) {
            followLinks(id, followed, found);
        } else {
            found.append({SvgFault::Kind::Reference, reference.offset,
                          QStringLiteral("\"%1\" is not a gradient or color of this file; correct the reference or add "
                                         "the gradient")
                              .arg(reference.value)});
        }
    }
    return found;
}

} // namespace ResourceCheck
