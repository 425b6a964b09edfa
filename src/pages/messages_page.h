#pragma once

#include "pages/form_page.h"

// The Messages page: what opens a message, and the titles of groups.
class MessagesPage final : public FormPage {
  public:
    MessagesPage();
};
