// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The file dialog under a user's hands, from opening to the result.

#include "desktop.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <X11/keysym.h>
#include <functional>
#include <optional>
#include <support/messagesentry.h>
#include <support/modaldriver.h>
#include <tarnwidgets/framelessfiledialog.h>

using Tarn::Test::Desktop;
using Tarn::Test::MessageSentry;
using Tarn::Test::ModalDriver;
using Tarn::Widgets::FramelessFileDialog;

namespace {

const QPoint InTitle(300, 12);

QPushButton *buttonOf(const QWidget *dialog, QDialogButtonBox::StandardButton which)
{
    return dialog->findChild<QDialogButtonBox *>()->button(which);
}

QLineEdit *nameEdit(const QWidget *dialog)
{
    return dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

} // namespace

class tst_FramelessFileDialogX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        m_desktop.emplace();
        QVERIFY(m_desktop->isAsExpected());
    }
    void cleanup()
    {
        m_desktop.reset();
    }

    void returnAcceptsTheSelectedName();
    void typedNameIsSaved();
    void fileIsClickedAndAccepted();
    void doubleClickOnAFileAcceptsIt();
    void doubleClickOnAFolderOpensIt();
    void userCancels_data();
    void userCancels();
    void titleMovesTheDialogAndTheListDoesNot();
    void sizeGripResizesTheDialog();

private:
    enum class Getter { Open, Save };

    /* The result of a getter that opens in \a dir, for a user who does \a actions. */
    QString ask(Getter getter, const QString &dir, const std::function<void(FramelessFileDialog *)> &actions,
                const char *logged);
    QPoint placeOf(const QWidget *dialog, const QString &name) const;
    QString path(const char *name) const;

    std::optional<Desktop> m_desktop;
    QTemporaryDir m_settings;
    QTemporaryDir m_dir;
};

void tst_FramelessFileDialogX11::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("folder")));
    for (const char *name : {"first", "second"}) {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

QString tst_FramelessFileDialogX11::path(const char *name) const
{
    return m_dir.filePath(QString::fromLatin1(name));
}

QString tst_FramelessFileDialogX11::ask(Getter getter, const QString &dir,
                                        const std::function<void(FramelessFileDialog *)> &actions,
                                        const char *logged)
{
    MessageSentry sentry;
    if (logged)
        sentry.expect(QtDebugMsg, QString::fromLatin1(logged));
    QWidget parent;
    const ModalDriver driver([&](QWidget *widget) {
        auto *dialog = qobject_cast<FramelessFileDialog *>(widget);
        QVERIFY(dialog);
        QVERIFY(m_desktop->isShown(dialog));
        QTRY_VERIFY(m_desktop->hasKeyboard(dialog));
        actions(dialog);
    });
    const QString caption = QStringLiteral("Caption");
    const QString result = getter == Getter::Open
        ? FramelessFileDialog::getOpenFileName(&parent, caption, dir)
        : FramelessFileDialog::getSaveFileName(&parent, caption, dir);
    return driver.ran() ? result : QStringLiteral("the user could not do it all");
}

/* Where on the screen the list shows a name, once it does. */
QPoint tst_FramelessFileDialogX11::placeOf(const QWidget *dialog, const QString &name) const
{
    const auto *view = dialog->findChild<QAbstractItemView *>(QStringLiteral("treeView"));
    const auto find = [&] {
        return view->model()
            ->match(view->model()->index(0, 0, view->rootIndex()), Qt::DisplayRole, name, 1, Qt::MatchExactly)
            .value(0);
    };
    if (!QTest::qWaitFor([&] { return find().isValid() && !view->visualRect(find()).isEmpty(); }))
        return QPoint();
    m_desktop->server.settle(); // sorted and painted
    const QRect row = view->visualRect(find());
    const QPoint inList(row.left() + 30, row.center().y());
    return m_desktop->geometry(dialog).topLeft() + view->viewport()->mapTo(dialog->window(), inList);
}

void tst_FramelessFileDialogX11::returnAcceptsTheSelectedName()
{
    const auto actions = [this](FramelessFileDialog *dialog) {
        QCOMPARE(nameEdit(dialog)->text(), QStringLiteral("second"));
        QTRY_VERIFY(buttonOf(dialog, QDialogButtonBox::Open)->isEnabled());
        QVERIFY(m_desktop->input.key(XK_Return));
        QTRY_VERIFY(!dialog->isVisible());
    };
    QCOMPARE(ask(Getter::Open, path("second"), actions, "FileDialog::slot_accepted"), path("second"));
}

void tst_FramelessFileDialogX11::typedNameIsSaved()
{
    // Nothing is clicked before: the keys reach the field for the name by themselves.
    const auto actions = [this](FramelessFileDialog *dialog) {
        QVERIFY(m_desktop->input.type(QStringLiteral("new name")));
        QTRY_COMPARE(nameEdit(dialog)->text(), QStringLiteral("new name"));
        QTRY_VERIFY(buttonOf(dialog, QDialogButtonBox::Save)->isEnabled());
        QVERIFY(m_desktop->input.key(XK_Return));
        QTRY_VERIFY(!dialog->isVisible());
    };
    QCOMPARE(ask(Getter::Save, m_dir.path(), actions, "FileDialog::slot_accepted"), path("new name"));
}

void tst_FramelessFileDialogX11::fileIsClickedAndAccepted()
{
    const auto actions = [this](FramelessFileDialog *dialog) {
        QVERIFY(!buttonOf(dialog, QDialogButtonBox::Open)->isEnabled());
        QVERIFY(m_desktop->input.click(placeOf(dialog, QStringLiteral("second"))));
        QTRY_COMPARE(nameEdit(dialog)->text(), QStringLiteral("second"));
        QTRY_VERIFY(buttonOf(dialog, QDialogButtonBox::Open)->isEnabled());
        QVERIFY(m_desktop->input.click(m_desktop->center(buttonOf(dialog, QDialogButtonBox::Open))));
        QTRY_VERIFY(!dialog->isVisible());
    };
    QCOMPARE(ask(Getter::Open, m_dir.path(), actions, "FileDialog::slot_accepted"), path("second"));
}

void tst_FramelessFileDialogX11::doubleClickOnAFileAcceptsIt()
{
    const auto actions = [this](FramelessFileDialog *dialog) {
        QVERIFY(m_desktop->input.doubleClick(placeOf(dialog, QStringLiteral("first"))));
        QTRY_VERIFY(!dialog->isVisible());
    };
    QCOMPARE(ask(Getter::Open, m_dir.path(), actions, "FileDialog::slot_accepted"), path("first"));
}

void tst_FramelessFileDialogX11::doubleClickOnAFolderOpensIt()
{
    const auto actions = [this](FramelessFileDialog *dialog) {
        QVERIFY(m_desktop->input.doubleClick(placeOf(dialog, QStringLiteral("folder"))));
        QTRY_COMPARE(dialog->directory().path(), path("folder"));
        QVERIFY(dialog->isVisible());
        QVERIFY(m_desktop->input.key(XK_Escape));
        QTRY_VERIFY(!dialog->isVisible());
    };
    QCOMPARE(ask(Getter::Open, m_dir.path(), actions, "FileDialog::slot_rejected"), QString());
}

void tst_FramelessFileDialogX11::userCancels_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::newRow("Escape") << QByteArrayLiteral("Escape");
    QTest::newRow("Cancel") << QByteArrayLiteral("Cancel");
    QTest::newRow("close button") << QByteArrayLiteral("close button");
}

void tst_FramelessFileDialogX11::userCancels()
{
    QFETCH(QByteArray, way);

    const auto actions = [&](FramelessFileDialog *dialog) {
        if (way == "Escape") {
            QVERIFY(m_desktop->input.key(XK_Escape));
        } else if (way == "Cancel") {
            const QPushButton *button = buttonOf(dialog, QDialogButtonBox::Cancel);
            QVERIFY(m_desktop->input.click(m_desktop->center(button)));
        } else {
            const QPoint corner = m_desktop->geometry(dialog).topRight();
            QVERIFY(m_desktop->input.click(corner + QPoint(-15, 12)));
        }
        QTRY_VERIFY(!dialog->isVisible());
    };
    // The title bar closes the dialog without asking the inner one.
    const char *logged = way == "close button" ? nullptr : "FileDialog::slot_rejected";
    QCOMPARE(ask(Getter::Open, path("first"), actions, logged), QString());
}

void tst_FramelessFileDialogX11::titleMovesTheDialogAndTheListDoesNot()
{
    const QRect place(100, 60, 800, 600);
    const QPoint way(70, 40);
    FramelessFileDialog dialog(nullptr, QString(), m_dir.path());
    dialog.setGeometry(place);
    QVERIFY(m_desktop->show(&dialog));
    QCOMPARE(m_desktop->geometry(&dialog), place);

    QVERIFY(m_desktop->input.drag(place.topLeft() + InTitle, place.topLeft() + InTitle + way));
    QTRY_COMPARE(m_desktop->geometry(&dialog), place.translated(way));

    // The empty part of the list, and the room around its field.
    QVERIFY(m_desktop->input.release());
    const QWidget *view = dialog.findChild<QAbstractItemView *>(QStringLiteral("treeView"));
    for (const QWidget *inner : {view, static_cast<const QWidget *>(dialog.findChild<QFileDialog *>())}) {
        const QPoint start = inner == view
            ? m_desktop->center(view)
            : m_desktop->geometry(&dialog).topLeft() + inner->mapTo(&dialog, QPoint(4, 4));
        QVERIFY(m_desktop->input.drag(start, start + way));
        QVERIFY(m_desktop->input.release());
        QCOMPARE(m_desktop->geometry(&dialog), place.translated(way));
    }
}

void tst_FramelessFileDialogX11::sizeGripResizesTheDialog()
{
    const QRect place(100, 60, 800, 600);
    FramelessFileDialog dialog(nullptr, QString(), m_dir.path());
    dialog.setGeometry(place);
    QVERIFY(m_desktop->show(&dialog));
    const QPoint grip = place.bottomRight() - QPoint(6, 6);
    QVERIFY(m_desktop->input.drag(grip, grip + QPoint(50, 30)));
    QTRY_COMPARE(m_desktop->geometry(&dialog).size(), QSize(850, 630));
}

QTEST_MAIN(tst_FramelessFileDialogX11)

#include "tst_framelessfiledialog_x11.moc"
