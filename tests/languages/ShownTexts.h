// What a person can read in a window, what of it has no room, and which letters are mnemonics.
#pragma once

#include "app/BarButton.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>

/// A text and where it is shown.
struct ShownText {
    QString where;
    QString text;
};

namespace shown {

inline QString nameOf(const QObject *object)
{
    const QString name = object->objectName();
    return QLatin1String(object->metaObject()->className()) + u' ' + name;
}

/// The window and everything in it that is to be seen, or would be if the window were shown.
inline QList<QWidget *> widgetsOf(QWidget *window)
{
    QList<QWidget *> widgets{ window };
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->isVisibleTo(window) && widget->window() == window->window()
            && !qobject_cast<QMenu *>(widget))
            widgets.append(widget);
    }
    return widgets;
}

inline void add(QList<ShownText> &texts, const QString &where, const QString &text)
{
    if (!text.isEmpty())
        texts.append({ where, text });
}

/// The texts of one widget; what a person enters is not among them.
inline void addTextsOf(QWidget *widget, QList<ShownText> &texts)
{
    static const char *const properties[] = { "text", "title", "toolTip", "accessibleName",
        "accessibleDescription", "placeholderText", "description", "statusTip", "whatsThis" };
    const bool entered = qobject_cast<QLineEdit *>(widget);
    for (const char *const property : properties) {
        if (!entered || qstrcmp(property, "text") != 0)
            add(texts, nameOf(widget) + u' ' + QLatin1String(property),
                widget->property(property).toString());
    }
    if (const auto *view = qobject_cast<QAbstractItemView *>(widget); view && view->model()) {
        for (int i = 0; i < view->model()->columnCount(); ++i)
            add(texts, nameOf(view) + QStringLiteral(" heading"),
                view->model()->headerData(i, Qt::Horizontal).toString());
    }
    if (const auto *tabs = qobject_cast<QTabBar *>(widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            add(texts, nameOf(tabs) + QStringLiteral(" tab"), tabs->tabText(i));
            add(texts, nameOf(tabs) + QStringLiteral(" tip"), tabs->tabToolTip(i));
        }
    }
}

inline QList<ShownText> textsOf(QWidget *window)
{
    QList<ShownText> texts;
    for (QWidget *widget : widgetsOf(window))
        addTextsOf(widget, texts);
    return texts;
}

/// The items of a menu that are to be seen, those of the menus in it as well.
inline QList<ShownText> textsOf(const QMenu *menu)
{
    QList<ShownText> texts{ { nameOf(menu), menu->title() } };
    for (const QAction *action : menu->actions()) {
        if (!action->isVisible() || action->isSeparator())
            continue;
        add(texts, nameOf(action), action->text());
        if (action->toolTip() != QString(action->text()).remove(u'&').remove(u'…'))
            add(texts, nameOf(action) + QStringLiteral(" toolTip"), action->toolTip());
        if (action->menu())
            texts += textsOf(action->menu()).sliced(1);
    }
    return texts;
}

/// A card takes the room of what it has to say, wrapped, below its heading; the symbol is beside them, or above them
/// in a tall card.
inline QSize roomWantedByCard(const BarButton *card)
{
    const bool tall = card->height() >= 200;
    const QRect room(0, 0, card->width() - (tall ? 40 : 108), 10'000);
    const QFontMetrics metrics(card->font());
    const int text = metrics.boundingRect(room, Qt::TextWordWrap, card->description()).height();
    return card->minimumSizeHint().expandedTo({ 0, text + metrics.height() + 4 + 16 + (tall ? 72 + 16 : 0) });
}

/// The room that the text of a widget takes; nothing where the widget has none, or shows it in part on purpose.
inline QSize roomWanted(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        if (label->text().isEmpty())
            return {};
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
    }
    if (const auto *bar = qobject_cast<const BarButton *>(widget))
        return bar->look() == BarButton::Look::Card ? roomWantedByCard(bar) : bar->sizeHint();
    if (qobject_cast<const QPushButton *>(widget) || qobject_cast<const QRadioButton *>(widget)
        || qobject_cast<const QCheckBox *>(widget) || qobject_cast<const QTabBar *>(widget))
        return widget->sizeHint();
    if (qobject_cast<const QGroupBox *>(widget))
        return widget->minimumSizeHint();
    return {};
}

inline bool scrolls(const QWidget *widget)
{
    for (const QWidget *above = widget->parentWidget(); above; above = above->parentWidget()) {
        if (qobject_cast<const QScrollArea *>(above) || qobject_cast<const QAbstractItemView *>(above))
            return true;
    }
    return false;
}

/// What of a window has less room than its text takes, or stands beyond the rim.
inline QStringList cutIn(QWidget *window)
{
    QStringList cut;
    for (QWidget *widget : widgetsOf(window)) {
        const QSize wanted = roomWanted(widget);
        if (wanted.isNull() || !wanted.isValid())
            continue;
        const QString text = nameOf(widget) + u' ' + widget->property("text").toString();
        if (wanted.width() > widget->width() || wanted.height() > widget->height() + 1)
            cut.append(QStringLiteral("%1: %2 x %3 of %4 x %5")
                           .arg(text)
                           .arg(widget->width())
                           .arg(widget->height())
                           .arg(wanted.width())
                           .arg(wanted.height()));
        const QRect place(widget->mapTo(window, QPoint(0, 0)), widget->size());
        if (!scrolls(widget) && !window->rect().contains(place))
            cut.append(text + QStringLiteral(" stands beyond the window's rim"));
    }
    for (const QHeaderView *heading : window->findChildren<QHeaderView *>()) {
        for (int i = 0; heading->isVisibleTo(window) && i < heading->count(); ++i) {
            if (heading->orientation() == Qt::Horizontal
                && heading->sectionSize(i) < heading->sectionSizeHint(i))
                cut.append(QStringLiteral("heading of column %1").arg(i));
        }
    }
    return cut;
}

/// The mnemonics that two of the texts have.
inline QStringList doubleMnemonics(const QStringList &texts)
{
    QHash<QString, QString> first;
    QStringList twice;
    for (const QString &text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty())
            continue;
        if (first.contains(key))
            twice.append(QStringLiteral("%1: “%2” and “%3”").arg(key, first.value(key), text));
        first.insert(key, text);
    }
    return twice;
}

inline QStringList itemsOf(const QList<QAction *> &actions)
{
    QStringList items;
    for (const QAction *action : actions) {
        if (action->isVisible() && !action->isSeparator())
            items.append(action->text());
    }
    return items;
}

/// The mnemonics that two items of one menu have, or two buttons of one window.
inline QStringList doubleMnemonics(const QMenu *menu)
{
    QStringList twice = doubleMnemonics(itemsOf(menu->actions()));
    for (const QAction *action : menu->actions()) {
        if (action->menu() && action->isVisible())
            twice += doubleMnemonics(action->menu());
    }
    return twice;
}

inline QStringList doubleMnemonics(QWidget *window)
{
    QStringList texts;
    for (const QWidget *widget : widgetsOf(window)) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        if ((label && label->buddy()) || qobject_cast<const QAbstractButton *>(widget))
            texts.append(widget->property("text").toString());
    }
    return doubleMnemonics(texts);
}

} // namespace shown
