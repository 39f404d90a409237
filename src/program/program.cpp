// The start is run() and what it calls, in this order; what waits for the window to stand is
// firstActivation(). Held by start_test.cpp and, from outside, by the tests of the whole program.

#include "program/program.h"

#include "app/settings.h"
#include "document/platform/paths.h"
#include "document/platform/word_ids.h"
#include "document/text/failure.h"
#include "editor/window/element_forms.h"
#include "forms/frm_about_quillmere.h"
#include "forms/frm_assistent.h"
#include "forms/help_window.h"
#include "forms/overlay.h"
#include "forms/screen_twips.h"
#include "forms/skin_application.h"
#include "forms/text.h"
#include "forms/trap.h"
#include "program/command_line_deck.h"
#include "program/frm_start.h"
#include "program/recovery_offer.h"
#include "program/screenshots.h"
#include "project/deck_dialogs.h"
#include "project/deck_files.h"
#include "project/frm_ask_projekt_dir.h"
#include "project/frm_open_from_projekt_dir.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QScreen>
#include <QTimer>

#include <array>
#include <cmath>

namespace quillmere {

namespace {

constexpr int kYieldsBehindAssistant = 4;
constexpr int kActivationPatienceMs = 300;
constexpr int kAlternativeTextPx = 11;
constexpr std::size_t kPreviewPageItem = 4;

// Templates come with a later version.
const auto kNoTemplates = QStringLiteral("Die Vorlagen geh\u00f6ren noch nicht zu dieser Version. "
                                         "Es wurde kein Dokument angelegt.");

QFont alternativeTextFont()
{
    auto font = QApplication::font();
    font.setPixelSize(kAlternativeTextPx);
    return font;
}

/// The directory that `directory` lies in; both have their separators.
std::string parentOf(const std::string& directory)
{
    return SplitPath(withoutSeparator(directory)).directory;
}

PageStyle pageStyle(const SkinItem& item)
{
    return {item.BackColor, item.FontSize, std::string(item.FontName.text())};
}

void closeAllBut(const QWidget& window)
{
    for (auto* widget : QApplication::topLevelWidgets())
        if (widget != &window && widget->isVisible()) widget->close();
}

} // namespace

Program::Program(StartOptions options)
    : options_(std::move(options))
    , directories_(prepareDataDirectories(AppDirectory(), userDataDirectory()))
    , painter_(alternativeTextFont())
    , session_{settings_, messages_, fileDialogs_, files_, drives_, words_, forms_,
          DocumentSession{workFiles_, displayCopies_, messages_, settings_, words_, OutputRules()}}
    , window_(session_, workFiles_)
{
    messages_.useSession(session_);
    fileDialogs_.useSession(session_);
    session_.document.twipsPerPixel = screenTwips(window_).x;
    session_.afterStore = [this](bool isChanged) { noteDeck(isChanged); };
    registerForms();
}

int Program::run()
{
    QApplication::setQuitOnLastWindowClosed(false); // the splash is none
    ensureSettings();
    showSplash();
    trapped(messages_, [this] { window_.Form_Load(); });
    applySkins();
    closeAllBut(window_);
    showMainWindow();
    QApplication::setQuitOnLastWindowClosed(true);
    return QApplication::exec();
}

void Program::ensureSettings()
{
    trapped(messages_, [this] {
        EnsureDefaultSettings(settings_,
            {directories_.shared, files_, drives_, kNativePathStyle, directories_.writable});
    });
    session_.document.output = OutputRules(isYes(settings_, "StandardOutput"));
}

void Program::showSplash()
{
    const auto skins = settings_.ReadSetting("Skins");
    const auto picture = skins.empty() ? QString() : shownPath(skins + "splash.bmp");
    frmStart(
        picture, [this] { loadResources(); }, [this] { decodeSkinAhead(); })
        .exec();
}

/// The pictures of the window, while the splash waits. What is wrong with a skin is told when it is
/// applied.
void Program::decodeSkinAhead()
{
    SkinTables tables;
    try {
        ReadEditorSkins(tables, settings_);
        decodePicturesAhead(tables, settings_, window_.devicePixelRatioF());
    } catch (const Failure&) {
        return;
    }
}

void Program::loadResources()
{
    trapped(messages_, [&] { forms_.LoadFormResources(settings_); });
    trapped(messages_, [&] { words_.LoadWordResources(settings_); });
    // Where settings cannot be kept there is no skin, and one of somebody's own may be without
    // texts, but nobody should face empty messages.
    MemorySettings shipped;
    shipped.WriteSetting("Skins", directories_.writable + "Skins/");
    if (forms_.table().forms.empty())
        trapped(messages_, [&] { forms_.LoadFormResources(shipped); });
    if (words_.table().empty()) trapped(messages_, [&] { words_.LoadWordResources(shipped); });
    translateQt();
    OverlayForm(window_, session_);
    window_.setWindowTitle(QStringLiteral("MORVANE Quillmere")); // the overlay cannot change it
}

/// Texts of Qt's own, such as those in its dialog for files and of keys.
void Program::translateQt()
{
    const auto language = shownText(words_.GetWord(word::kLanguage));
    const auto folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (qtTexts_.load(QStringLiteral("qtbase_") + language, folder))
        QApplication::installTranslator(&qtTexts_);
}

void Program::applySkins()
{
    const bool bigFonts = IsBigFonts(session_.document.twipsPerPixel);
    auto& skins = session_.skins;
    trapped(messages_, [&] { ReadEditorSkins(skins, settings_); });
    trapped(messages_, [&] { ReadPreviewSkins(skins, settings_, bigFonts); });
    if (const auto preview = FindSelectedSkin(skins, false)) {
        previewPage_ = pageStyle(skins.PreviewSkins[*preview].items[kPreviewPageItem]);
        session_.document.devices.back() = &previewPage_; // the front one is the window's
    }
    trapped(messages_, [this] { window_.applySkin(); });
}

void Program::showMainWindow()
{
    window_.firstActivation = [this] { firstActivation(); };
    const auto screen = QGuiApplication::primaryScreen()->availableGeometry();
    window_.move(screen.center() - window_.rect().center());
    window_.show();
    window_.activateWindow();
    // A desktop may give the keyboard to another window, or to none, when the splash goes. The
    // start goes on all the same.
    QTimer::singleShot(kActivationPatienceMs, &window_, [this] {
        if (hasBegun_) return;
        QEvent activation(QEvent::WindowActivate);
        QApplication::sendEvent(&window_, &activation);
    });
}

// The window goes up a little once it stands, by 100 twips of the design's and back by 75.
void Program::firstActivation()
{
    hasBegun_ = true;
    const double twips = session_.document.twipsPerPixel;
    const double upTwips = twips * 100 / kDesignTwips - 75;
    window_.move(window_.x(), window_.y() - static_cast<int>(std::lround(upTwips / twips)));
    if (!options_.screenshots.isEmpty()) {
        window_.askAboutCosts
            = [](const DeckCosts&) { return CostsAnswer::Keep; }; // nobody is there
        openCommandLine();
        return takeScreenshots(window_, session_, options_.screenshots);
    }
    const bool isOpen
        = offerCrashedRuns(session_, parentOf(workFiles_.directory())) || openCommandLine();
    if (!isOpen) showAssistant();
    window_.SetFocusToBrowser();
}

/// Whether the command line names a deck, be it one that can be opened or not.
bool Program::openCommandLine()
{
    const auto deck = deckOfCommandLine(options_.commandLine);
    if (!deck) return false;
    trapped(messages_, [&] { OpenDocument(session_, deck->name, deck->directory); });
    return true;
}

void Program::showAssistant()
{
    if (!isYes(settings_, "ShowStartDialog")) return;
    session_.gSurfaceActive = false;
    const auto trapping
        = [this](auto routine) { return [this, routine] { trapped(messages_, routine); }; };
    frmAssistent::showAndRun(session_,
        {trapping([this] { frmAskProjektDir(session_, &window_).showModally(); }),
            trapping([this] { OpenDeckDialog(session_); }),
            [this] { messages_.showText(kNoTemplates, MessageIcon::None); }},
        &window_);
    for (int i = 0; i < kYieldsBehindAssistant; ++i)
        QApplication::processEvents();
}

void Program::registerForms()
{
    registerElementForms(window_, session_);
    const auto registerForm = [this]<class Form>(const char* name, std::in_place_type_t<Form>) {
        window_.registerForm(
            name, [this](const FormCall&) { Form(session_, &window_).showModally(); });
    };
    window_.registerForm("Help", [this](const FormCall& call) { showHelp(call.page); });
    registerForm("frmAboutQuillmere", std::in_place_type<frmAboutQuillmere>);
    registerForm("frmAskProjektDir", std::in_place_type<frmAskProjektDir>);
    registerForm("frmOpenFromProjektDir", std::in_place_type<frmOpenFromProjektDir>);
}

/// Beside the dialog that keeps all other windows off, where there is one.
void Program::showHelp(const QString& page)
{
    auto* dialog = QApplication::activeModalWidget();
    if (HelpWindow::open(session_, page, dialog != nullptr ? dialog : &window_)) return;
    const auto file = shownPath(settings_.ReadSetting("HelpFile"));
    messages_.show(word::kNoHelp, std::array{coreText(file)}, MessageIcon::None);
}

// Behind the step that stored, since a message lets other events in.
void Program::noteDeck(bool isChanged)
{
    writeRecoveryNote(
        session_.document, {isChanged, session_.deckFile.seen(), session_.sourcePath});
    if (workFiles_.trouble() && !std::exchange(isTroubleTold_, true))
        QTimer::singleShot(0, &window_, [this] { tellTrouble(); });
}

/// Once in a run: the text stays in memory and can be saved, but a crash would take it along.
void Program::tellTrouble()
{
    if (!workFiles_.trouble()) return;
    messages_.show(word::kNoRecovery,
        {{coreText(QString::fromStdString(workFiles_.trouble()->utf8()))}}, MessageIcon::Warning);
}

void Program::showWindow()
{
    // While the splash stands the window comes anyway; shown now it would have its first activation
    // behind it before the start is through.
    if (!window_.isVisible()) return;
    window_.showNormal();
    window_.raise();
    window_.activateWindow();
}

} // namespace quillmere
