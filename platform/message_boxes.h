// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace velmoriax::platform {

enum class BoxIcon { none, information, warning, critical };

/// Modal boxes. An empty title means the application's title. All texts are UTF-8.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// A box with an OK button; returns when it is closed.
    virtual void show(BoxIcon icon, const std::string& text, const std::string& title = {}) = 0;

    /// A box with Yes and No and no icon; true for Yes.
    virtual bool askYesNo(const std::string& text, const std::string& title = {}) = 0;

    /// An input box with an empty default; nothing when it is cancelled.
    virtual std::optional<std::string> askText(const std::string& prompt, const std::string& title) = 0;

    /// A dialog to choose a file to open. `filter` holds caption and pattern, such as "Songs (*.mid*)"; nothing when it
    /// is cancelled.
    virtual std::optional<std::string> askFile(const std::string& title, const std::string& directory,
                                               const std::string& filter) = 0;
};

} // namespace velmoriax::platform
