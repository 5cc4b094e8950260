// Images by key. The shell knows the picture by the key; a key that was removed is missing from here on.
#pragma once

#include <set>
#include <string>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/controls/Control.h"
#include "platform/controls/Picture.h"

namespace orvelle {

class ImageList : public Control {
public:
    ImageList(Form& form, std::string name, std::set<std::string> imageKeys)
        : Control(form, std::move(name)), keys(std::move(imageKeys)) {}

    const std::set<std::string>& Keys() const { return keys; }
    void Remove(const std::string& key) { keys.erase(key); }
    // The icon of that key; none is run-time error 9.
    Picture Image(const std::string& key) const {
        if (!keys.contains(key)) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
        return {Picture::Icon, key};
    }

private:
    std::set<std::string> keys;
};

}  // namespace orvelle
