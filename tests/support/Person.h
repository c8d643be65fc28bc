// What a person does with the window: presses, types, chooses from menus and answers dialogs.
#pragma once

#include "app/Window_Alert.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>
#include <QTreeView>
#include <QWindow>
#include <QtTest>

#include <functional>
#include <memory>

namespace person {

/// Milliseconds that a busy machine may need to show what it shows at once otherwise.
constexpr int patience = 60'000;

/// Presses the mouse over a widget. The press goes to the window, so that what covers or blocks the widget
/// gets or hinders it as it would a person.
inline void clickAt(const QWidget *widget, const QPoint &place, Qt::KeyboardModifiers with = {})
{
    const QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, with, widget->mapTo(window, place));
}

/// Presses a button in its middle. A button that nobody could press is left alone, and the test told.
inline void click(QAbstractButton *button)
{
    if (!button || !button->isVisible() || !button->isEnabled()) {
        qWarning() << "nobody can press" << button;
        return;
    }
    clickAt(button, button->rect().center());
}

/// Presses the button with this name.
inline void click(const QWidget *window, const char *name)
{
    click(window->findChild<QAbstractButton *>(QLatin1String(name)));
}

/// Chooses the menu item with this name.
inline void choose(const QWidget *window, const char *item)
{
    auto *action = window->findChild<QAction *>(QLatin1String(item));
    if (!action || !action->isVisible() || !action->isEnabled()) {
        qWarning() << "nobody can choose" << item;
        return;
    }
    action->trigger();
}

inline void clickTab(QTabWidget *tabs, int index)
{
    clickAt(tabs->tabBar(), tabs->tabBar()->tabRect(index).center());
}

inline void clickHeading(const QTableView *table, int column)
{
    const QHeaderView *header = table->horizontalHeader();
    const int middle = header->sectionViewportPosition(column) + header->sectionSize(column) / 2;
    clickAt(header->viewport(), { middle, header->height() / 2 });
}

inline void clickRow(QAbstractItemView *view, const QModelIndex &index, Qt::KeyboardModifiers with = {})
{
    view->scrollTo(index);
    const QRect place = view->visualRect(index);
    clickAt(view->viewport(), { place.left() + 8, place.center().y() }, with);
}

/// Drags files from a file manager and lets them go over the middle of a widget.
inline void drop(const QWidget *widget, const QList<QUrl> &urls)
{
    auto *data = new QMimeData;
    data->setUrls(urls);
    const QWidget *window = widget->window();
    const QPoint place = widget->mapTo(window, widget->rect().center());
    const auto action = Qt::CopyAction;
    QWindow *target = window->windowHandle();
    const std::unique_ptr<QMimeData> owner(data);
    QDragEnterEvent enter(place, action, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &enter);
    QDragMoveEvent move(place, action, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &move);
    if (!move.isAccepted())
        return;
    QDropEvent drop(place, action, data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &drop);
}

/// Waits until a window has the keyboard; a sheet gets it only after its parent has had it.
[[nodiscard]] inline bool awaitKeyboard(const QWidget *window)
{
    return QTest::qWaitFor(
        [window] { return QGuiApplication::focusWindow() == window->window()->windowHandle(); }, patience);
}

/// Types on the keyboard, into whatever window has it. Where no window manager hands the keyboard back after
/// a dialog, the window below is taken.
inline void press(const QKeySequence &keys)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (!QGuiApplication::focusWindow() && window->isVisible() && !window->parent())
            window->activateWindow();
    }
    if (QTest::qWaitFor([] { return QGuiApplication::focusWindow() != nullptr; }, patience))
        QTest::keySequence(QGuiApplication::focusWindow(), keys);
}

/// The dialog that waits for an answer; null when none does.
inline QWidget *waitingDialog()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<Window_Alert *>(window))
            return window;
    }
    return QApplication::activeModalWidget();
}

/// A dialog that is expected, and what is done with it. It is waited for from now on; `happened()` tells
/// whether it came. A dialog of another kind is refused after a while, so that the test goes on and fails.
template <class Dialog>
class Expect {
public:
    explicit Expect(std::function<void(Dialog *)> act)
        : m_act(std::move(act))
    {
        m_timer.setInterval(interval);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start();
    }
    Expect(const Expect &) = delete;
    Expect &operator=(const Expect &) = delete;

    bool happened() const { return m_happened; }

private:
    void look()
    {
        QWidget *modal = waitingDialog();
        if (!modal || !modal->isVisible())
            return;
        if (auto *dialog = dynamic_cast<Dialog *>(modal)) {
            m_timer.stop();
            m_happened = true;
            const QPointer<QWidget> up(modal);
            m_act(dialog);
            if (up && waitingDialog() == up) {
                qWarning() << "the dialog was not answered:" << modal;
                modal->close();
            }
        } else if (++m_wrong > patience / interval) {
            qWarning() << "another dialog than expected is up:" << modal;
            modal->close();
        }
    }

    static constexpr int interval = 20;

    std::function<void(Dialog *)> m_act;
    QTimer m_timer;
    int m_wrong = 0;
    bool m_happened = false;
};

/// Presses the button with this title in a dialog.
inline void pressTitled(const QWidget *dialog, const QString &title)
{
    for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->text().remove(QLatin1Char('&')) == title)
            return click(button);
    }
    qWarning() << "there is no button" << title;
}

/// Pastes a path into the name field of a file dialog.
inline void pastePath(QFileDialog *dialog, const QString &path)
{
    auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (!awaitKeyboard(dialog))
        qWarning() << "the dialog does not get the keyboard";
    name->setFocus();
    name->setText(path);
}

/// Goes to `folder` in a file dialog by pasting its path, then marks the files with these names in the list,
/// in this order, and presses Open.
inline void openFiles(QFileDialog *dialog, const QString &folder, const QStringList &names)
{
    auto *list = dialog->findChild<QTreeView *>(QStringLiteral("treeView"));
    pastePath(dialog, folder);
    pressTitled(dialog, QStringLiteral("Open"));
    const auto row = [list](const QString &file) {
        const QAbstractItemModel *model = list->model();
        const QModelIndex root = list->rootIndex();
        for (int i = 0; i < model->rowCount(root); ++i) {
            const QModelIndex index = model->index(i, 0, root);
            if (index.data().toString() == file)
                return index;
        }
        return QModelIndex();
    };
    Qt::KeyboardModifiers with;
    for (const QString &file : names) {
        // The list is filled from another thread and may still move under the pointer.
        const bool marked = QTest::qWaitFor(
            [&] {
                if (row(file).isValid() && !list->selectionModel()->isSelected(row(file)))
                    clickRow(list, row(file), with);
                return row(file).isValid() && list->selectionModel()->isSelected(row(file));
            },
            patience);
        if (!marked)
            qWarning() << "the file dialog does not let mark" << file;
        with = Qt::ControlModifier;
    }
    pressTitled(dialog, QStringLiteral("Open"));
}

/// The names that a file dialog shows of a folder, once `expected` of them are there.
inline QStringList shownFiles(QFileDialog *dialog, const QString &folder, const QString &expected)
{
    dialog->setDirectory(folder);
    const auto *list = dialog->findChild<QTreeView *>(QStringLiteral("treeView"));
    const auto names = [list] {
        QStringList shown;
        for (int i = 0; i < list->model()->rowCount(list->rootIndex()); ++i)
            shown.append(list->model()->index(i, 0, list->rootIndex()).data().toString());
        return shown;
    };
    if (!QTest::qWaitFor([&] { return names().contains(expected); }, patience))
        qWarning() << "the file dialog does not show" << expected;
    return names();
}

/// Pastes a folder's path into a dialog that asks for a folder, and confirms.
inline void openFolder(QFileDialog *dialog, const QString &folder)
{
    pastePath(dialog, folder);
    pressTitled(dialog, QStringLiteral("Choose"));
}

/// Goes to the folder that holds `place`, marks `place` in the list and confirms.
inline void markFolder(QFileDialog *dialog, const QString &place)
{
    dialog->setDirectory(QFileInfo(place).path());
    auto *list = dialog->findChild<QTreeView *>(QStringLiteral("treeView"));
    const bool marked = QTest::qWaitFor(
        [&] {
            const QAbstractItemModel *model = list->model();
            for (int row = 0; row < model->rowCount(list->rootIndex()); ++row) {
                const QModelIndex index = model->index(row, 0, list->rootIndex());
                if (index.data().toString() == QFileInfo(place).fileName())
                    clickRow(list, index);
            }
            return dialog->selectedFiles() == QStringList(place);
        },
        patience);
    if (!marked)
        qWarning() << "the dialog does not let mark" << place;
    pressTitled(dialog, QStringLiteral("Choose"));
}

} // namespace person
