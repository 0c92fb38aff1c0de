// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "oracle.h"

#include "support/leftovers.h"

#include <QApplication>
#include <QFileInfo>
#include <QStackedWidget>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/limitedfiledialog.h>
#include <tarnwidgets/tarntabbar.h>
#include <tarnwidgets/tarntabwidget.h>

using namespace Tarn::Widgets;

namespace Tarn::Storm {

namespace {

QString s_unexpected;

struct Sanction
{
    const char *part;
    const char *reason;
};

constexpr Sanction Sanctions[] = {
    {"This plugin does not support", "the offscreen platform, about each raised or fixed window"},
    {"Your IP Address is Invalid!", "promised by IPLineEdit::setText()"},
    {"QWidget::setMinimumSize", "sizes out of range are drawn on purpose"},
    {"QWidget::setMaximumSize", "likewise"},
    {"QFont::setPixelSize", "likewise"},
    {"QFont::setPointSize", "likewise"},
    {"Could not parse", "style sheets with errors"},
    {"Unimplemented code.", "the offscreen platform, about a drag that is cancelled"},
    {"(SetInputFocus)", "Qt and a window manager that hides the window meanwhile"},
    {"(BadWindow)", "likewise"},
    {"setNetWmStateOnUnmappedWindow", "likewise"},
    {"QBasicTimer::start: Timers cannot have negative timeouts", "a button's autoRepeatDelay is drawn, too"},
    {"does not contain a '[*]' placeholder", "so is a window's windowModified"},
    {"QDialogButtonBox::addButton: Invalid ButtonRole", "roles out of range are drawn on purpose"},
    {"FileDialog::slot_", "FramelessFileDialog says what the user has chosen"},
};

void judge(QtMsgType, const QMessageLogContext &, const QString &message)
{
    for (const Sanction &sanction : Sanctions) {
        if (message.contains(QLatin1String(sanction.part)))
            return;
    }
    if (s_unexpected.isNull())
        s_unexpected = message;
}

QString promisesOf(const TarnTabWidget *tabs)
{
    if (tabs->count() != tabs->getStackWidget()->count())
        return QStringLiteral("TarnTabWidget has %1 tabs and %2 pages")
            .arg(tabs->count())
            .arg(tabs->getStackWidget()->count());
    if (tabs->currentIndex() < -1 || tabs->currentIndex() >= tabs->count())
        return QStringLiteral("TarnTabWidget's current index is out of range");
    return {};
}

QString promisesOf(const TarnTabBar *bar)
{
    if (bar->currentIndex() < -1 || bar->currentIndex() >= bar->count())
        return QStringLiteral("TarnTabBar's current index is out of range");
    return {};
}

QString promisesOf(const IPLineEdit *edit)
{
    const QString text = edit->text();
    if (text.count(QLatin1Char('.')) != 3 || text.size() > 15)
        return QStringLiteral("IPLineEdit's text is no address: %1").arg(text);
    return {};
}

QString promisesOf(const LimitedFileDialog *dialog)
{
    if (!dialog->isStrict() || !QFileInfo(dialog->getLimitedPath()).isDir())
        return {};
    const QString shown = dialog->directory().absolutePath();
    return dialog->pathFits(shown) ? QString()
                                   : QStringLiteral("a strict LimitedFileDialog shows %1").arg(shown);
}

template <typename Class> QString ask(const QObject *object)
{
    const auto *subject = qobject_cast<const Class *>(object);
    return subject ? promisesOf(subject) : QString();
}

} // namespace

void watchLog()
{
    qInstallMessageHandler(judge);
}

QString unexpectedMessage()
{
    const QString message = s_unexpected;
    s_unexpected = QString();
    return message;
}

QString brokenPromise(Stage &stage)
{
    const QVector<QObject *> all = stage.objects();
    for (const QObject *object : all) {
        for (const auto asked :
             {ask<TarnTabWidget>, ask<TarnTabBar>, ask<IPLineEdit>, ask<LimitedFileDialog>}) {
            const QString broken = asked(object);
            if (!broken.isNull())
                return broken;
        }
    }
    return {};
}

QString leftOvers()
{
    // Qt keeps the tool tip for the next one.
    const QStringList windows = Test::leftOverTopLevels({QStringLiteral("QTipLabel")});
    if (!windows.isEmpty())
        return QStringLiteral("left over: ") + windows.join(QStringLiteral(", "));
    return {};
}

} // namespace Tarn::Storm
