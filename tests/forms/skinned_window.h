#pragma once

#include "app/settings.h"
#include "forms/skin_application.h"
#include "forms/tool_label.h"
#include "forms/tool_picture.h"
#include "skins/skin_controls.h"
#include "skins/skin_files.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include <string>

namespace quillmere {

/// A window with all controls that a skin of the editor dresses, without what they do.
class SkinnedWindow : public SkinWindow {
public:
    SkinnedWindow()
    {
        setObjectName("frmPrepare");
        new QPlainTextEdit(this);
        for (const auto& control : kSkinControls)
            add(QString::fromLatin1(control.name.data(), qsizetype(control.name.size())));
        for (const auto tool : kSkinTools)
            addTool(QString::fromLatin1(tool.data(), qsizetype(tool.size())));
    }

    ToolLabel& tool(const QString& name) { return *findChild<ToolLabel*>("lblButton" + name); }
    template <typename Control = QWidget> Control& control(const QString& name)
    {
        return *findChild<Control*>(name);
    }

private:
    void add(const QString& name)
    {
        QWidget* control = nullptr;
        if (name.startsWith("btn")) control = new QPushButton(this);
        if (name.startsWith("lbl")) control = new QLabel(this);
        if (name.startsWith("txt")) control = findChild<QPlainTextEdit*>();
        control->setObjectName(name);
    }

    void addTool(const QString& name)
    {
        auto* picture = name == "Morvane" ? nullptr : new ToolPicture("picButton" + name, this);
        new ToolLabel("lblButton" + name, picture, this);
    }
};

/// Settings that name a directory of skins, with its separator.
struct SkinSettings {
    explicit SkinSettings(const std::string& directory)
    {
        settings.WriteSetting("Skins", directory);
    }
    MemorySettings settings;
};

} // namespace quillmere
