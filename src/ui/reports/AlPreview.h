#pragma once

#include "reports/AlReport.h"

#include <QAbstractScrollArea>
#include <QList>
#include <QString>

namespace tb {

class TDrawMetaFile;

// The page view of the preview window: the recorded pages, one shown at a time at a zoom
// percent of its recorded size, centred on a grey background with a border and a shadow.
class tAlPreview : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit tAlPreview(QWidget *parent = nullptr);
    ~tAlPreview() override;

    // The recorded pages; the previewer owns them and frees them with itself.
    QList<TDrawMetaFile *> &pages() { return m_pages; }
    void clearPages();
    int pageCount() const { return int(m_pages.size()); }

    // 1-based; 0 while there are no pages.
    int currentPage() const { return m_page; }
    // Accepted only for 1 <= n <= the page count.
    bool setCurrentPage(int n);
    void firstPage() { setCurrentPage(1); }
    void lastPage();
    void nextPage() { setCurrentPage(m_page + 1); }
    void previousPage() { setCurrentPage(m_page - 1); }

    int zoom() const { return m_zoom; }
    // Ignored unless 25 <= z <= 200 and z differs from the current zoom.
    bool setZoom(int z);
    // The zoom steps of a mouse click: 50, 75, 100, 150, 200. A zoom between the steps stays.
    static int zoomInStep(int z);
    static int zoomOutStep(int z);

    // Set while the pages are being printed.
    bool busy() const { return m_busy; }
    void setBusy(bool busy) { m_busy = busy; }

    QString title;
    TPrinterOrientation orientation = TPrinterOrientation::poPortrait;

    // The page rectangle in viewport coordinates.
    QRect pageRect() const;

Q_SIGNALS:
    void pageChanged(int page, int count);
    void zoomChanged(int zoom);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    QSize zoomedSize() const;
    void updateScrollBars();

    QList<TDrawMetaFile *> m_pages;
    int m_page = 0;
    int m_zoom = 100;
    bool m_busy = false;
};

} // namespace tb
