#pragma once

// The numbers of the texts that are built at run time. The texts stand in data/Skins/ResWords.ini,
// each with a remark on where it is used. A text without a note here has no gap "<?>".

namespace quillmere::word {

// Templates
inline constexpr int kReplaceByTemplate = 0; ///< gap: file name
inline constexpr int kNoTemplates = 1;
inline constexpr int kTemplateFolderCaption = 2;
inline constexpr int kTemplateFolderInfo = 3;
inline constexpr int kTemplatesMissing = 133;
inline constexpr int kStartPageSkipped = 134;

// Decks, their files and directories
inline constexpr int kProjectFolderCaption = 6;
inline constexpr int kProjectFolderInfo = 7;
inline constexpr int kBadDeckName = 8;
inline constexpr int kNameStartPage = 9;
inline constexpr int kReplaceByNewDeck = 10; ///< gap: file name
inline constexpr int kBadNameSaveAs = 123;
inline constexpr int kReplaceBySaveAs = 124; ///< gap: file name
inline constexpr int kMakeDirectory = 128; ///< gap: directory
inline constexpr int kCompleteUrl = 129; ///< gap: address
inline constexpr int kReplacePicture = 130; ///< gap: file name
inline constexpr int kPictureNotCopied = 131; ///< gap: file name

// Titles and filters of file dialogs
inline constexpr int kPreviewFileTitle = 139;
inline constexpr int kSaveDeckAsTitle = 140;
inline constexpr int kOpenDeckTitle = 141;
inline constexpr int kNewDeckTitle = 142;
inline constexpr int kChoosePictureTitle = 143;
inline constexpr int kChooseTargetTitle = 144;
inline constexpr int kAllFilesFilter = 145;
inline constexpr int kWbmpFilter = 146;
inline constexpr int kWmlFilter = 147;

// Folder tree
inline constexpr int kNewFolderCaption = 11;
inline constexpr int kNewFolderInfo = 12; ///< gap: parent folder
inline constexpr int kNewFolderLabel = 13;
inline constexpr int kNewFolderName = 14;
inline constexpr int kBadFolderName = 15;
inline constexpr int kDesktop = 16;
inline constexpr int kComputer = 17;

// Areas and their elements
inline constexpr int kDeleteArea = 4;
inline constexpr int kJumpLabel = 136;
inline constexpr int kBackLabel = 137;
inline constexpr int kImageText = 18;
inline constexpr int kDeleteImage = 19;
inline constexpr int kLinkText = 20;
inline constexpr int kDeleteLink = 21;
inline constexpr int kOptionText = 30;
inline constexpr int kDeleteOption = 31;
inline constexpr int kTableTitle = 60;
inline constexpr int kDeleteTable = 61;
inline constexpr int kSelectionCrossesOption = 62;
inline constexpr int kSelectionCrossesSelect = 63;
inline constexpr int kSelectionCrossesTable = 64;
inline constexpr int kClipartMissing = 127; ///< gap: file
inline constexpr int kNumberRange = 135; ///< gaps: least, greatest

// Notes
inline constexpr int kNoteCaption = 23;
inline constexpr int kNoteOption = 24;
inline constexpr int kNoteImage = 25;
inline constexpr int kNotePlain = 26;
inline constexpr int kNoteImageLayout = 27;
inline constexpr int kNoteSelectRepair = 28;
inline constexpr int kNoteSelectRepairYes = 29;

// Main window
inline constexpr int kAreaCaption = 38;
inline constexpr int kAreaCaptionEnd = 39;
inline constexpr int kNoDeckCaption = 40;
inline constexpr int kTakeSource = 41;
inline constexpr int kSaveChanges = 42;
inline constexpr int kGraphicView = 43;
inline constexpr int kNoTextSelected = 44;
inline constexpr int kResetSource = 45;
inline constexpr int kNoDeckOpen = 46;
inline constexpr int kNotInSourceView = 47;
inline constexpr int kNothingToSave = 48;
inline constexpr int kNotIntoTable = 49;
inline constexpr int kNoElementMarked = 50;

// Recovery
inline constexpr int kNoRecovery = 200; ///< gap: reason
inline constexpr int kRecover = 201; ///< gaps: document, day, time
inline constexpr int kRecoverOverAltered = 202; ///< gaps: document, day, time
inline constexpr int kRecoverRemoved = 203; ///< gaps: document, day, time
inline constexpr int kDiscardRecovered = 204; ///< gap: document

// Main window: saving, hints, search in the source
inline constexpr int kAlteredOutside = 205; ///< gap: file name
inline constexpr int kRemovedOutside = 206; ///< gap: file name
inline constexpr int kNotSaved = 207;
inline constexpr int kTextStays = 208;
inline constexpr int kToolMissing = 209; ///< gap: tool
inline constexpr int kRecentDecks = 210;
inline constexpr int kCharacterCount = 211; ///< gap: number
inline constexpr int kNoHit = 212;
inline constexpr int kOneHit = 213;
inline constexpr int kHits = 214; ///< gap: number
inline constexpr int kHitOf = 215; ///< gaps: hit, number
inline constexpr int kReplaced = 216; ///< gap: number
inline constexpr int kNoHelp = 220; ///< gap: file
inline constexpr int kOpenWithoutLoss = 222; ///< gap: why the default cannot open it
inline constexpr int kLanguage = 221; ///< of the texts, as "de"

// Hints of the deck dialogs
inline constexpr int kBadNameHint = 217;
inline constexpr int kBadFolderHint = 218;
inline constexpr int kIsOpenHint = 219;

// What the dialogs of elements tell
inline constexpr int kAreaNeedsName = 240;
inline constexpr int kAreaNameBadCharacter = 241;
inline constexpr int kAreaNameBadBegin = 242;
inline constexpr int kAreaNameTaken = 243;
inline constexpr int kJumpNeedsCaption = 244;
inline constexpr int kTargetMissing = 245;
inline constexpr int kStillLeadsTo = 246; ///< gaps: id, areas
inline constexpr int kElementGone = 247;
inline constexpr int kNoWbmpPicture = 248;
inline constexpr int kPictureMissing = 249; ///< gap: file
inline constexpr int kLinkNeedsCaption = 250;
inline constexpr int kCannotBecomeLink = 251;
inline constexpr int kTakesNoFormat = 252;
inline constexpr int kTakesNoAlignment = 253;

// Picture converter
inline constexpr int kConverterFolderCaption = 32;
inline constexpr int kConverterFolderInfo = 33;
inline constexpr int kSaveWbmpTitle = 34;
inline constexpr int kBadWbmpName = 35;
inline constexpr int kSaveWbmpInProject = 36; ///< gaps: file name, directory

// Skins
inline constexpr int kDeleteSkin = 58;
inline constexpr int kSizeLimits = 59; ///< gaps: least, greatest

// Connection profiles
inline constexpr int kDeleteProfile = 119;
inline constexpr int kProfileName = 120;
inline constexpr int kSaveProfile = 121;

// Upload: connection
inline constexpr int kNotConnected = 65;
inline constexpr int kUploadFolderCaption = 66;
inline constexpr int kUploadFolderInfo = 67;
inline constexpr int kStartPageMissing = 68;
inline constexpr int kDisconnect = 69;
inline constexpr int kOperationEnded = 70;
inline constexpr int kConnected = 71;
inline constexpr int kDialling = 97;
inline constexpr int kDialFailed = 98;
inline constexpr int kDialFailedLog = 99;
inline constexpr int kOpeningInternet = 100;
inline constexpr int kInternetFailed = 101;
inline constexpr int kInternetFailedLog = 102;
inline constexpr int kInternetOpen = 103;
inline constexpr int kConnecting = 104;
inline constexpr int kConnectFailedLog = 105;
inline constexpr int kConnectFailed = 106;
inline constexpr int kServerConnected = 107;
inline constexpr int kDisconnecting = 108;
inline constexpr int kInternetClosed = 109;
inline constexpr int kServerDisconnected = 110;
inline constexpr int kHangingUp = 111;
inline constexpr int kCheckHungUp = 112;
inline constexpr int kHangUpAgain = 113;
inline constexpr int kHangUpEnded = 114;

// Upload: transfers. The gap is the name or path of the file or directory.
inline constexpr int kReplacingRemote = 72;
inline constexpr int kFileSent = 73;
inline constexpr int kFileNotSent = 74;
inline constexpr int kRemoteDirectoryMade = 75;
inline constexpr int kRemoteDirectoryNotMade = 76;
inline constexpr int kDeleteRemote = 77; ///< no gap
inline constexpr int kRemoteFileDeleted = 78;
inline constexpr int kRemoteFileNotDeleted = 79;
inline constexpr int kRemoteDirectoryDeleted = 80;
inline constexpr int kRemoteDirectoryNotDeleted = 81;
inline constexpr int kTreeFileDeleted = 82;
inline constexpr int kTreeEmptied = 83;
inline constexpr int kTreeDirectoryDeleted = 84;
inline constexpr int kTreeDirectoryNotDeleted = 85;
inline constexpr int kNewRemoteCaption = 86; ///< no gap, as the next three
inline constexpr int kNewRemoteInfo = 87;
inline constexpr int kNewRemoteLabel = 88;
inline constexpr int kNewRemoteName = 89;
inline constexpr int kNewRemoteMade = 90;
inline constexpr int kNewRemoteNotMade = 91;
inline constexpr int kAddFilesTitle = 92; ///< no gap
inline constexpr int kFileInProject = 93;
inline constexpr int kReplaceInProject = 94;
inline constexpr int kAddedFolderCaption = 95; ///< no gap, as the rest
inline constexpr int kAddedFolderInfo = 96;
inline constexpr int kSendingFiles = 115;
inline constexpr int kDeletingFiles = 116;
inline constexpr int kMakingDirectory = 117;
inline constexpr int kReadingDirectory = 118;

} // namespace quillmere::word
