#pragma once

#include "http/http_server.h"
#include "rehearsal/template_folder.h"
#include "rehearsal/viewer_feed.h"

namespace zelvor::rehearsal {

// Serves the monitor page, the template folder under /templates/, and the web socket the page is kept up to date by.
// Templates are served so that a browser runs them in an origin of their own, apart from the monitor page's.
class PageServer {
 public:
    // Both must outlive the server.
    PageServer(const TemplateFolder& folder, ViewerFeed& feed);

    // Port 0 takes a free one. On failure gives the reason, otherwise an empty text.
    QString start(const QHostAddress& address, quint16 port) { return server_.listen(address, port); }
    [[nodiscard]] quint16 port() const { return server_.port(); }

 private:
    [[nodiscard]] HttpResponse answer(const HttpRequest& request) const;

    const TemplateFolder& folder_;
    HttpServer server_;
};

// HTML with the script tag in it by which the page reaches the template. It goes behind a doctype at the beginning, so
// that the browser's choice of mode stays the template's.
QByteArray withShim(const QByteArray& html);

}  // namespace zelvor::rehearsal
