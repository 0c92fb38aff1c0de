// SPDX-FileCopyrightText: 2026 the tarnwidgets developers
// SPDX-License-Identifier: MIT

// The file dialog under a platform theme that has native dialogs: a QFileDialog inside another dialog would
// leave an empty frame there.

#include "support/functionguard.h"
#include "support/modaldriver.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <optional>
#include <tarnwidgets/framelessfiledialog.h>

using namespace Tarn::Test;
using Tarn::Widgets::FramelessFileDialog;

namespace {

QFileDialog *innerOf(const FramelessFileDialog &dialog)
{
    return dialog.findChild<QFileDialog *>();
}

template <typename Child> Child *part(const QWidget *dialog, const char *name)
{
    return dialog->findChild<Child *>(QString::fromLatin1(name));
}

QStringList entries(const QComboBox *combo)
{
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    return texts;
}

} // namespace

class tst_FramelessFileDialogNative : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        m_guard.emplace();
    }
    void cleanup()
    {
        m_guard.reset();
    }

    void qtsOwnDialogIsNativeHere();
    void innerDialogHasItsWidgets_data();
    void innerDialogHasItsWidgets();
    void argumentsShowInTheWidgets();
    void optionsStayTheCallers_data();
    void optionsStayTheCallers();
    void getterReturnsWhatWasChosen();

private:
    std::optional<FunctionGuard> m_guard;
    QTemporaryDir m_settings;
    QTemporaryDir m_dir;
};

void tst_FramelessFileDialogNative::initTestCase()
{
    const QString theme = QString::fromLocal8Bit(qgetenv("QT_QPA_PLATFORMTHEME"));
    const QString plugin = QStringLiteral("/platformthemes/libq%1.so").arg(theme);
    if (!QFile::exists(QLibraryInfo::location(QLibraryInfo::PluginsPath) + plugin))
        QSKIP("The platform theme named by QT_QPA_PLATFORMTHEME is not installed.");
    QVERIFY(m_dir.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    QFile file(m_dir.filePath(QStringLiteral("one.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

// The premise of all others.
void tst_FramelessFileDialogNative::qtsOwnDialogIsNativeHere()
{
    const QFileDialog dialog;
    QVERIFY(dialog.findChildren<QWidget *>().isEmpty());
}

void tst_FramelessFileDialogNative::innerDialogHasItsWidgets_data()
{
    QTest::addColumn<bool>("withFlags");
    QTest::newRow("with flags") << true;
    QTest::newRow("with a caption") << false;
}

void tst_FramelessFileDialogNative::innerDialogHasItsWidgets()
{
    QFETCH(bool, withFlags);

    const auto dialog = withFlags ? std::make_unique<FramelessFileDialog>(nullptr, Qt::WindowFlags())
                                  : std::make_unique<FramelessFileDialog>();
    dialog->show();
    QVERIFY(innerOf(*dialog)->isVisible());
    auto *edit = part<QLineEdit>(innerOf(*dialog), "fileNameEdit");
    QVERIFY(edit);
    QVERIFY(edit->isVisible());
    QCOMPARE(dialog->focusWidget(), edit);
}

void tst_FramelessFileDialogNative::argumentsShowInTheWidgets()
{
    // GIVEN a widget-based dialog of Qt's with the same arguments
    const QString filters = QStringLiteral("Text (*.txt);;All (*)");
    QFileDialog qt(nullptr, QStringLiteral("Caption"), m_dir.path(), filters);
    qt.setOption(QFileDialog::DontUseNativeDialog);
    QVERIFY(part<QComboBox>(&qt, "fileTypeCombo"));

    FramelessFileDialog ours(nullptr, QStringLiteral("Caption"), m_dir.path(), filters);

    QCOMPARE(innerOf(ours)->windowTitle(), QStringLiteral("Caption"));
    QCOMPARE(ours.directory().path(), m_dir.path());
    QCOMPARE(ours.selectedNameFilter(), QStringLiteral("Text (*.txt)"));
    for (const char *name : {"fileTypeCombo", "lookInCombo"}) {
        const QStringList expected = entries(part<QComboBox>(&qt, name));
        QVERIFY(!expected.isEmpty());
        QCOMPARE(entries(part<QComboBox>(innerOf(ours), name)), expected);
    }
}

void tst_FramelessFileDialogNative::optionsStayTheCallers_data()
{
    QTest::addColumn<QFileDialog::Options>("options");
    QTest::newRow("none") << QFileDialog::Options();
    QTest::newRow("read only") << QFileDialog::Options(QFileDialog::ReadOnly);
    QTest::newRow("no native dialog") << QFileDialog::Options(QFileDialog::DontUseNativeDialog);
}

void tst_FramelessFileDialogNative::optionsStayTheCallers()
{
    QFETCH(QFileDialog::Options, options);

    FramelessFileDialog dialog;
    QCOMPARE(dialog.options(), QFileDialog::Options());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOptions(options);
    QCOMPARE(dialog.options(), options);
    dialog.show();
    QVERIFY(part<QLineEdit>(innerOf(dialog), "fileNameEdit")->isVisible());
}

void tst_FramelessFileDialogNative::getterReturnsWhatWasChosen()
{
    const QString file = m_dir.filePath(QStringLiteral("one.txt"));
    m_guard->sentry().expect(QtDebugMsg, QStringLiteral("FileDialog::slot_accepted"));
    QWidget parent;
    ModalDriver driver([](QWidget *dialog) {
        QVERIFY(dialog->findChild<QDialogButtonBox *>());
        QPushButton *open = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open);
        QTRY_VERIFY(open->isEnabled());
        open->click();
    });
    QCOMPARE(FramelessFileDialog::getOpenFileName(&parent, QString(), file), file);
    QVERIFY(driver.ran());
}

QTEST_MAIN(tst_FramelessFileDialogNative)

#include "tst_framelessfiledialog_native.moc"
