#pragma once

#include "editor/design_surface.h"
#include "editor/page/pasted_elements.h"
#include "editor/window/form_openers.h"
#include "editor/window/frm_deck_changes.h"
#include "editor/window/source_edit.h"
#include "forms/named.h"
#include "forms/session.h"
#include "forms/tool_label.h"
#include "forms/tool_picture.h"
#include "forms/window_outline.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// The main window. It shows one area of the open deck on the surface, or the whole deck as WML
/// text, decides when the surface is written to its design work file and the deck to its own, and
/// launches all tools. The index of the shown area is DocumentSession::currentArea.
class frmPrepare : public SkinWindow, public DeckWindow {
    Q_OBJECT

public:
    using Element = SurfaceSelection::Element;

    /// Registers itself as the window of the session, whose work files `files` are.
    frmPrepare(Session& session, WorkFiles& files, QWidget* parent = nullptr);
    ~frmPrepare() override;
    frmPrepare(const frmPrepare&) = delete;
    frmPrepare& operator=(const frmPrepare&) = delete;
    frmPrepare(frmPrepare&&) = delete;
    frmPrepare& operator=(frmPrepare&&) = delete;

    // The start. Form_Load once the resources are there, applySkin once the skins are.
    void Form_Load();
    void applySkin();
    /// Opens a deck of the command line or shows the assistant, when the window stands first.
    std::function<void()> firstActivation;
    /// The window closes without a question from now on.
    void closeAtOnce() { mCloseNow = true; }

    /// Makes a form known to the tools that open it.
    void registerForm(const std::string& name, FormOpener opener);

    void SetFocusToBrowser() override;
    void RefreshSurface() override;
    void SavePreparedDokumentAndShowArea(bool Show) override;
    void AskAndSaveTmpWmlDocToWmlDoc(bool Ask) override;
    void SetScriptUndoFlagsBack() override;
    void resumeSource(const std::string& wml) override;
    void ShowHelp() override;
    void ShowMsg(int Index) override;
    void CheckElementMovedIntoTable(bool& Undone);
    void setDocChanged(bool changed) override;
    [[nodiscard]] bool docChanged() const override;

    [[nodiscard]] int CurArea() const { return session_.document.currentArea; }
    [[nodiscard]] const std::optional<Element>& MarkedImage() const { return mMarkedImage; }
    [[nodiscard]] const std::optional<Element>& MarkedInput() const { return mMarkedInput; }
    [[nodiscard]] const std::optional<Element>& MarkedTable() const { return mMarkedTable; }
    [[nodiscard]] DesignSurface& surface() { return *objBrowserCard; }

    /// The element at the selection; nullopt where none is marked there.
    struct Marked {
        ElementKind kind = ElementKind::Option;
        Hit hit;
    };
    [[nodiscard]] std::optional<Marked> markedElement();
    /// Hit test for one kind of element on the stored surface.
    [[nodiscard]] Hit hitTest(std::string_view startTag, std::string_view endTag, bool refresh);
    /// Writes the surface to the shown area's design work file.
    void store();

    /// Shows what saving by the default would cost, and asks how the deck is to be opened.
    std::function<CostsAnswer(const DeckCosts& costs)> askAboutCosts;
    /// Shows what a save mends; true where it may.
    std::function<bool(const QStringList& mends)> askAboutMends;
    /// Opens an address or a file in the program that the desktop has for it.
    std::function<void(const QString& address)> openOutside;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Command;
    static const Command kTools[];
    static const Command kMenuEntries[];
    static const Command kKeys[];
    enum class Guards { None, ToSave, OpenDeck, DeckAndSurface };

    // the window itself
    void layOut();
    void wire();
    void wireSurface();
    void makeTools();
    [[nodiscard]] ToolLabel* makeLabel(const char* name);
    void takeSkin(const SkinRecord& skin);
    void makeMenus();
    void makeKeys();
    void Form_Activate();
    void Form_Unload();
    void showTitle();
    [[nodiscard]] QString word(int id, std::string_view gap = {}) const;
    void takeTexts();
    void showCharacterCount(int count);
    /// A text that the resources have as a variant of this form.
    [[nodiscard]] QString resourceText(std::int16_t number, const char* otherwise) const;
    void trap(const std::function<void()>& routine);

    // areas
    [[nodiscard]] bool deckIsOpen() const;
    [[nodiscard]] DeckRecord& shownArea();
    [[nodiscard]] std::string shownDesignPath();
    void refresh();
    void disableNavigation();
    void showNavigation();
    void showArea();
    void showNoArea();
    void showCaptions();
    void applySurfaceLook();
    void goToArea(int area);
    void btnAreaNext_Click();
    void btnAreaPrev_Click();
    void btnAreaOne_Click();
    void btnShowProjekt_Click();

    // what was changed
    void surfaceChanged();
    void keepUndoState();
    void undoOnSurface();
    void undoOfKey();
    void storeSoon();
    void storeWhenIdle();
    void tellStored() const;
    void writeDeckFile();
    [[nodiscard]] std::string deckPath() const;
    void rememberFile();
    void requireOwnFile();
    void lookAtNewDeck();
    void recallMends(const std::string& file);
    void warnOfCosts();
    void useStandardOutput();
    [[nodiscard]] bool mayMend();

    // the source view
    void btnScript_Click();
    void showSource();
    void takeSource();
    void storeSource();
    void dropStoredSource();
    void txtScript_Change();
    void txtScript_KeyPress();
    void undoInSource();

    // commands
    [[nodiscard]] bool allows(Guards guards);
    void run(const Command& command);
    void openForm(const std::string& name, const FormCall& call);
    [[nodiscard]] bool hasForm(std::string_view name) const { return forms_.contains(name); }
    void tellMissing(const QString& caption);
    void popUp(QMenu& menu, const char* tool);
    void insertElement(ElementKind kind, const char* form);
    [[nodiscard]] bool refusesTable(const Hit& hit, ElementKind kind);

    void lblButtonSeiteSave();
    void lblButtonSeiteOpen();
    void lblButtonSeiteNew();
    void lblButtonArea();
    void lblButtonTable();
    void lblButtonOption();
    void lblButtonImage();
    void lblButtonLink();
    void lblButtonTextFormat();
    void lblButtonJustify();
    void lblButtonPreviour();
    void lblButtonUndo();
    void lblButtonUpload();
    void lblButtonBildKonverter();
    void lblButtonSystem();
    void lblButtonHelp();
    void lblButtonMorvane();
    void mnuSave();
    void mnuSaveAs();
    void mnuOpenTemplate();
    void mnuNewWmlPage();
    void mnuInsertClipart();
    void mnuInsertImage();
    void mnuAboutQuillmere();
    void mnuMoreAboutQuillmere();
    void openRecent(const std::string& path);
    void showRecentDecks();

    // the surface's events and menus
    void onkeypress();
    void onkeyup();
    void onmousedown(const Element& source);
    void ondblclick();
    void markElement(const Element& source);
    void ShowSurfaceMenu(QPoint point);
    void enableEntries(const std::optional<Marked>& marked);
    [[nodiscard]] bool canInsert() const;
    void mnuContextCut();
    void mnuContext1Copy();
    void mnuContext2Copy();
    void mnuContext1Insert_Click();
    void mnuContext1AreaParameters();
    void insertClip();
    void insertAsElement(ElementKind kind, const std::string& clip, const Hit& hit);
    void takePicture(const std::string& clip);
    void pasteByKey();
    bool surfaceKey(QKeyEvent& event);

    // files that are dropped
    bool dropped(QEvent& event);

    Session& session_;
    FormOpeners forms_;
    HitTester hits_;

    QLabel* const lblDeckName = named<QLabel>("lblDeckName", this);
    QLabel* const lblCurAreaCaption = named<QLabel>("lblCurAreaCaption", this);
    DesignSurface* const objBrowserCard;
    SourceEdit* const txtScript = named<SourceEdit>("txtScript", this);
    QLabel* const lblToolTipForbtnAreaPrev = named<QLabel>("lblToolTipForbtnAreaPrev", this);
    QLabel* const lblToolTipAreaNext = named<QLabel>("lblToolTipAreaNext", this);
    QPushButton* const btnShowProjekt = named<QPushButton>("btnShowProjekt", this);
    QPushButton* const btnScript = named<QPushButton>("btnScript", this);
    QPushButton* const btnAreaPrev = named<QPushButton>("btnAreaPrev", this);
    QPushButton* const btnAreaOne = named<QPushButton>("btnAreaOne", this);
    QPushButton* const btnAreaNext = named<QPushButton>("btnAreaNext", this);
    QLabel* const lblCharCount = named<QLabel>("lblCharCount", this);
    QMenu* const mnuContextSave = named<QMenu>("mnuContextSave", this);
    QMenu* const mnuContextOpen = named<QMenu>("mnuContextOpen", this);
    QMenu* const mnuContextInsertImages = named<QMenu>("mnuContextInsertImages", this);
    QMenu* const mnuContextHelp = named<QMenu>("mnuContextHelp", this);
    QMenu* const mnuContext1 = named<QMenu>("mnuContext1", this);
    QMenu* const mnuContext1InsertElements = named<QMenu>("mnuContext1InsertElements", mnuContext1);
    QMenu* const mnuContext1InsertImage
        = named<QMenu>("mnuContext1InsertImage", mnuContext1InsertElements);
    QMenu* const mnuContext2 = named<QMenu>("mnuContext2", this);

    bool mScriptView = false;
    bool mDocChanged = false;
    bool mScriptChanged = false;
    bool mScriptChangedBefore = false;
    QString mScriptInitial;
    std::vector<QString> mScriptUndo = std::vector<QString>(1);
    int mRefreshGuard = 0;
    bool mFirstActivate = true;
    bool mActivated = false;
    bool mContextMenuEnabled = true;
    bool mKeyPressed = false;
    bool mCloseNow = false;
    std::optional<Element> mMarkedImage;
    std::optional<Element> mMarkedInput;
    std::optional<Element> mMarkedTable;
    int mImageIndex = 0;

    QString sourceHint_; ///< of btnScript while the surface is shown
    bool refreshWanted_ = false;
    std::string surfaceShows_; ///< the design work file that the surface was loaded from
    std::optional<SurfaceStyle> skinLook_; ///< of the surface, by the skin
    PageStyle pageStyle_;
    QRegion outline_;
    QTimer idle_;
    bool idleFailed_ = false; ///< and was told
    std::string watched_; ///< the path that Session::deckFile remembers
    bool deckIsNew_ = false; ///< and not yet looked at for what saving would cost
    QStringList mendsMade_; ///< in the areas already, and not told
    bool mayMend_ = false; ///< the person assented for this deck
};

} // namespace quillmere
