#include "kit/SymbolIcon.h"

#include <QFile>
#include <QIconEngine>
#include <QLoggingCategory>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

// Outside every namespace, as the macro wants: a static library's resources are not linked in by themselves.
static void loadSymbols()
{
    Q_INIT_RESOURCE(symbols);
}

namespace {

constexpr float disabledOpacity = 0.4F;

QString fileOf(const QString &name)
{
    return u":/icons/"_s + name + u".svg"_s;
}

/// One symbol in one colour; with an invalid colour, in its own.
class SymbolIconEngine : public QIconEngine {
public:
    SymbolIconEngine(const QString &name, const QColor &color)
        : m_name(name)
        , m_color(color)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap drawn = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        drawn.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), drawn);
    }

    /// `size` is in device pixels; what QIcon makes of it carries the device's pixel ratio.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const bool disabled = mode == QIcon::Disabled;
        const QString key = u"symbol/%1/%2/%3x%4/%5"_s.arg(m_name)
                                .arg(m_color.isValid() ? m_color.name(QColor::HexArgb) : u"own"_s)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(disabled);
        QPixmap drawn;
        if (!QPixmapCache::find(key, &drawn)) {
            drawn = draw(size, disabled);
            QPixmapCache::insert(key, drawn);
        }
        return drawn;
    }

    QIconEngine *clone() const override { return new SymbolIconEngine(*this); }
    QString key() const override { return u"corvalis-symbol"_s; }
    bool isNull() override { return false; }

private:
    QPixmap draw(const QSize &size, bool disabled) const
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        if (size.isEmpty())
            return drawn;
        QSvgRenderer renderer(fileOf(m_name));
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter painter(&drawn);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter);
        const QRect all(QPoint(), size);
        if (m_color.isValid()) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(all, m_color);
        }
        if (disabled) {
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            painter.fillRect(all, QColor::fromRgbF(0, 0, 0, disabledOpacity));
        }
        return drawn;
    }

    QString m_name;
    QColor m_color;
};

} // namespace

QIcon symbolIcon(const QString &name, const QColor &color)
{
    loadSymbols();
    if (name.isEmpty())
        return {};
    if (!QFile::exists(fileOf(name))) {
        qWarning("There is no symbol \"%ls\".", qUtf16Printable(name));
        return {};
    }
    return QIcon(new SymbolIconEngine(name, color.isValid() ? color : QColor(Qt::black)));
}

QIcon applicationIcon()
{
    loadSymbols();
    return QIcon(new SymbolIconEngine(u"corvalis"_s, QColor()));
}
