// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

#include "oracle.h"

#include "support/leftovers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileInfo>
#include <QFrame>
#include <QHeaderView>
#include <QLayout>
#include <QResizeEvent>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <tarnwidgets/colordialog.h>
#include <tarnwidgets/colorshower.h>
#include <tarnwidgets/framelessdialog.h>
#include <tarnwidgets/framelessmessagebox.h>
#include <tarnwidgets/framelesswindow.h>
#include <tarnwidgets/iplineedit.h>
#include <tarnwidgets/limitedfiledialog.h>
#include <tarnwidgets/tarntabbar.h>
#include <tarnwidgets/tarntabwidget.h>

using namespace Tarn::Widgets;

namespace Tarn::Storm {

namespace {

QString s_unexpected;

// X11 counts pixels in 16 bits, one of them for the sign.
constexpr int MostPixels = 32767;
bool s_hadGiant = false;

// Layouts make windows as large as long texts in large fonts want.
class GiantWitness : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize && watched->isWidgetType()
            && static_cast<QWidget *>(watched)->isWindow()) {
            const QSize size = static_cast<QResizeEvent *>(event)->size();
            s_hadGiant |= size.width() > MostPixels || size.height() > MostPixels;
        }
        return false;
    }
};

bool hadGiant()
{
    return s_hadGiant;
}

bool hasTextEdit()
{
    const QWidgetList all = QApplication::allWidgets();
    return std::any_of(all.cbegin(), all.cend(), [](const QWidget *widget) {
        return widget->inherits("QPlainTextEdit") || widget->inherits("QTextEdit");
    });
}

bool hasFlatHeader()
{
    const QWidgetList all = QApplication::allWidgets();
    return std::any_of(all.cbegin(), all.cend(), [](const QWidget *widget) {
        const auto *header = qobject_cast<const QHeaderView *>(widget);
        return header && header->isVisible() && header->viewport()->height() == 0;
    });
}

struct Sanction
{
    const char *part;
    const char *reason;
    const char *also = "";
    bool (*applies)() = nullptr;
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
    // A plain QWidget does that, too, if it is made higher and then wider while its updates are disabled, and
    // an opaque child moves: Qt scrolls its picture with the graphics context that went at the first of the
    // changes.
    {"(BadGC)", "Qt, about a window that is resized twice while its updates are disabled", "resource id: 0,"},
    // A plain QWidget around a QPushButton with some thousand letters does that, too.
    {"(BadAlloc)", "Qt, about the picture of a window that is larger than X11 can count", "(CreatePixmap)",
     hadGiant},
    {"(BadPixmap)", "Qt, which frees that picture afterwards", "(FreePixmap)", hadGiant},
    {"(BadDrawable)", "Qt, which scrolls that picture", "(CopyArea)", hadGiant},
    {"(BadMatch)", "Qt, which clips to pieces of that window, farther away than X11 can count",
     "(SetClipRectangles)", hadGiant},
    {"QDragManager::drag in possibly invalid state",
     "a text edit, whose timer for scrolling drags the selection that is being dragged", "", hasTextEdit},
    // It makes a picture of the section that is pressed.
    {"QPainter::", "a QHeaderView to which a style sheet leaves no height", "", hasFlatHeader},
    {"qDrawShadeRect: Invalid parameters", "a QGroupBox lower than its title, in the Windows style"},
    {"QBasicTimer::start: Timers cannot have negative timeouts", "a button's autoRepeatDelay is drawn, too"},
    {"does not contain a '[*]' placeholder", "so is a window's windowModified"},
    {"QDialogButtonBox::addButton: Invalid ButtonRole", "roles out of range are drawn on purpose"},
    {"Non-native QFileDialog supports only local files", "an address of another kind is drawn on purpose"},
    {"QSortFilterProxyModel: index from wrong model", "QFileDialog, about each proxy model that it gets"},
    {"FileDialog::slot_", "FramelessFileDialog says what the user has chosen"},
};

void judge(QtMsgType, const QMessageLogContext &, const QString &message)
{
    for (const Sanction &sanction : Sanctions) {
        if (message.contains(QLatin1String(sanction.part)) && message.contains(QLatin1String(sanction.also))
            && (!sanction.applies || sanction.applies()))
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

// Listens to an editor from the first look at it.
class AddressWitness : public QObject
{
public:
    explicit AddressWitness(IPLineEdit *edit)
        : QObject(edit)
        , m_known(edit->text())
    {
        connect(edit, &IPLineEdit::addressChanged, this, [this, edit](const QString &address) {
            if (address != edit->text() || address == m_known)
                m_lie = QStringLiteral("IPLineEdit announced %1 after %2, and has %3")
                            .arg(address, m_known, edit->text());
            m_known = address;
        });
    }

    QString m_known;
    QString m_lie;
};

constexpr auto WitnessName = "stormWitness";

QString announcementsOf(IPLineEdit *edit)
{
    const auto *witness = edit->findChild<AddressWitness *>(QLatin1String(WitnessName));
    if (!witness) {
        (new AddressWitness(edit))->setObjectName(QLatin1String(WitnessName));
        return {};
    }
    if (witness->m_lie.isNull() && witness->m_known != edit->text())
        return QStringLiteral("IPLineEdit has %1 and announced %2").arg(edit->text(), witness->m_known);
    return witness->m_lie;
}

QString promisesOf(IPLineEdit *edit)
{
    constexpr int FieldCount = 4;
    constexpr int MaxDigits = 3;
    const QString text = edit->text();
    QStringList parts;
    const QList<QLineEdit *> fields = edit->findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    for (QLineEdit *field : fields) {
        if (edit->getIndex(field) != parts.size() || field->text().size() > MaxDigits)
            return QStringLiteral("IPLineEdit's field %1 has %2").arg(parts.size()).arg(field->text());
        parts.append(field->text());
    }
    if (parts.size() != FieldCount || parts.join(QLatin1Char('.')) != text)
        return QStringLiteral("IPLineEdit's text is not that of its fields: %1").arg(text);
    const bool isAccepted = edit->hasAcceptableInput();
    const bool isValid = edit->isTextValid(text);
    if (isAccepted != isValid && (isAccepted || edit->acceptsAnyAddress()))
        return QStringLiteral("IPLineEdit accepts %1: %2, and calls it valid: %3")
            .arg(text)
            .arg(isAccepted)
            .arg(isValid);
    return announcementsOf(edit);
}

QString promisesOf(const ColorDialog *dialog)
{
    const auto *shower = dialog->findChild<ColorShower *>();
    if (!shower)
        return QStringLiteral("ColorDialog has lost its editors");
    const QColor color = shower->currentQColor();
    if (!color.isValid() || (color.rgb() & RGB_MASK) != (shower->currentColor() & RGB_MASK))
        return QStringLiteral("ColorDialog's colour %1 is not the one it shows, %2")
            .arg(color.isValid() ? color.name() : QStringLiteral("(invalid)"))
            .arg(shower->currentColor(), 0, 16);
    return {};
}

bool isOneOf(const FramelessMessageBox *box, QAbstractButton *button)
{
    return !button || box->buttons().contains(button);
}

QString promisesOf(const FramelessMessageBox *box)
{
    if (!isOneOf(box, box->defaultButton()) || !isOneOf(box, box->escapeButton()))
        return QStringLiteral("FramelessMessageBox's default or escape button is none of its buttons");
    const QList<QAbstractButton *> buttons = box->buttons();
    QMessageBox::StandardButtons standard;
    for (QAbstractButton *button : buttons)
        standard |= box->standardButton(button);
    if (standard != box->standardButtons())
        return QStringLiteral("FramelessMessageBox's standard buttons are not those that it has");
    return {};
}

// Where the room suffices: a window that was made too small for its content has nowhere to put it.
bool hasRoom(const QLayout *layout, const QSize &size)
{
    const QSize least = layout->minimumSize();
    const int height = layout->hasHeightForWidth()
        ? qMax(least.height(), layout->minimumHeightForWidth(size.width()))
        : least.height();
    return size.width() >= least.width() && size.height() >= height;
}

// Anew, since widgets may have been moved out of their places.
void layOut(QLayout *layout)
{
    layout->invalidate();
    layout->activate();
}

// The layout goes by the greatest size then, and the widget by the least.
bool isContradictory(const QWidget *widget)
{
    return widget->minimumWidth() > widget->maximumWidth()
        || widget->minimumHeight() > widget->maximumHeight();
}

// All that is in \a layout and to be seen, layouts in it included.
QString whatLeaves(QLayout *layout, const QRect &room)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->isEmpty() || (item->widget() && isContradictory(item->widget())))
            continue;
        const QRect place = item->widget() ? item->widget()->geometry() : item->geometry();
        if (!item->spacerItem() && !place.isEmpty() && !room.contains(place))
            return item->widget() ? QLatin1String(item->widget()->metaObject()->className())
                                  : QLatin1String("QLayout");
        if (QLayout *inner = item->layout()) {
            const QString found = whatLeaves(inner, room);
            if (!found.isNull())
                return found;
        }
    }
    return {};
}

QString promisesOf(const FramelessDialog *dialog)
{
    QLayout *layout = dialog->getMainLayout();
    if (!dialog->isVisible() || !layout)
        return {};
    layOut(layout);
    if (!hasRoom(layout, dialog->size()))
        return {};
    const QString found = whatLeaves(layout, dialog->rect().adjusted(1, 1, -1, -1));
    return found.isNull() ? QString()
                          : QStringLiteral("%1 covers the border of %2, %3 x %4")
                                .arg(found, QLatin1String(dialog->metaObject()->className()))
                                .arg(dialog->width())
                                .arg(dialog->height());
}

// The border is the style sheet's, on the frame around title bar and content.
QString promisesOf(const FramelessWindow *window)
{
    const QWidget *content = window->centralWidget();
    auto *frame = content ? qobject_cast<QFrame *>(content->parentWidget()) : nullptr;
    // Qt shows a new frame from the event loop, and keeps it far outside of a window that has no area.
    if (!frame || !frame->isVisible() || !frame->layout() || window->size().isEmpty()
        || !frame->property("isFramelessCentralWidget").toBool())
        return {};
    layOut(window->layout());
    if (!hasRoom(window->layout(), window->size()))
        return {};
    if (!window->rect().contains(frame->geometry()))
        return QStringLiteral("FramelessWindow's frame is outside of it");
    layOut(frame->layout());
    if (!hasRoom(frame->layout(), frame->size()))
        return {};
    const QString found = whatLeaves(frame->layout(), frame->contentsRect());
    return found.isNull() ? QString() : QStringLiteral("%1 covers the border of FramelessWindow").arg(found);
}

QString promisesOf(const LimitedFileDialog *dialog)
{
    if (!dialog->isStrict() || !QFileInfo(dialog->getLimitedPath()).isDir())
        return {};
    const QString shown = dialog->directory().absolutePath();
    return dialog->pathFits(shown) ? QString()
                                   : QStringLiteral("a strict LimitedFileDialog shows %1").arg(shown);
}

template <typename Class> QString ask(QObject *object)
{
    auto *subject = qobject_cast<Class *>(object);
    return subject ? promisesOf(subject) : QString();
}

} // namespace

void watchLog()
{
    qInstallMessageHandler(judge);
    qApp->installEventFilter(new GiantWitness(qApp));
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
    for (QObject *object : all) {
        for (const auto asked :
             {ask<TarnTabWidget>, ask<TarnTabBar>, ask<IPLineEdit>, ask<LimitedFileDialog>, ask<ColorDialog>,
              ask<FramelessMessageBox>, ask<FramelessDialog>, ask<FramelessWindow>}) {
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
