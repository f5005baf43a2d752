// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/message_boxes.h"

namespace velmoriax::desktop {

/// Modal boxes of the toolkit over the active window.
class QtMessageBoxes : public platform::MessageBoxes {
public:
    void show(platform::BoxIcon icon, const std::string& text, const std::string& title) override;
    bool askYesNo(const std::string& text, const std::string& title) override;
    std::optional<std::string> askText(const std::string& prompt, const std::string& title) override;
    std::optional<std::string> askFile(const std::string& title, const std::string& directory,
                                       const std::string& filter) override;
};

} // namespace velmoriax::desktop
