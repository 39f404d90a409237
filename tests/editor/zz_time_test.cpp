#pragma GCC diagnostic ignored "-Wconversion"
#include "editor/page/page_difference.h"
#include "document/text/windows1252.h"
#include "editor/surface_fixture.h"
#include <QElapsedTimer>
#include <QTextDocument>
#include <gtest/gtest.h>
#include <iostream>
namespace quillmere { namespace {
using test::ShownSurface;
std::string para() { std::string t; while (t.size()<30000) t += "<p align=\"left\">Der Hofladen liegt am Rand des Dorfes, dort, wo die <b>Stra\xdf""e</b> nach Ahrental abbiegt. <a href=\"#x\">Mehr dazu</a> und noch ein Satz.</p>"; return t; }
std::string table() { std::string t="<p>x</p><table border=\"1\">"; for(int r=0;r<30;r++){t+="<tr>"; for(int c=0;c<10;c++) t+="<td>Zelle "+std::to_string(r*c)+"</td>"; t+="</tr>";} t+="</table><p>"; while (t.size()<29000) t+="Wort und <i>noch eines</i> mehr. "; return t+"</p>"; }
std::string tableOnly() { std::string t="<p>x</p><table border=\"1\">"; for(int r=0;r<30;r++){t+="<tr>"; for(int c=0;c<10;c++) t+="<td>Zelle "+std::to_string(r*c)+"</td>"; t+="</tr>";} return t+"</table>"; }
TEST(Time, All) {
  for (auto [name,text,where] : {std::tuple{"first",para(),std::string("Der")},{"last",para(),std::string("LAST")},{"table",table(),std::string("Zelle 8")},{"tableonly",tableOnly(),std::string("Zelle 8")}}) {
    ShownSurface s; s.resize(600,500);
    QElapsedTimer e; e.start(); s.setDocumentHTML(text); QApplication::processEvents(); auto load=double(e.nsecsElapsed())/1e6; 
    double best=1e9; for(int i=0;i<5;i++){ e.restart(); s.setDocumentHTML(text); best=std::min(best,double(e.nsecsElapsed())/1e6);} QApplication::processEvents();
    auto o = where=="LAST" ? text.rfind("noch") : text.find(where); s.setCaretOffset(o+1); QApplication::processEvents();
    e.restart(); int n=20; for(int i=0;i<n;i++) s.type("x"); auto key=double(e.nsecsElapsed())/1e6/n;
    e.restart(); for(int i=0;i<n;i++) {s.type("x"); QApplication::processEvents();} auto key2=double(e.nsecsElapsed())/1e6/n;
    QTextEdit q; q.resize(600,500); q.show(); e.restart(); q.setHtml(QString::fromStdString(toUtf8(text))); auto qh=double(e.nsecsElapsed())/1e6; QApplication::processEvents();
    auto qh2=double(e.nsecsElapsed())/1e6;
    QTextCursor c=q.document()->find("Zelle 8"); if (c.isNull()) c=QTextCursor(q.document()); e.restart(); for(int i=0;i<n;i++) c.insertText("x"); auto qk=double(e.nsecsElapsed())/1e6/n;
    std::cerr<<name<<" load+paint "<<load<<" load "<<best<<" key "<<key<<" key+events "<<key2<<" setHtml "<<qh<<" +paint "<<qh2<<" qt insert "<<qk<<"\n";
  }
}
}}
namespace quillmere { namespace {
TEST(Time, Count) {
  test::ShownSurface s; s.resize(600,500); s.setDocumentHTML(tableOnly()); s.setCaretOffset(s.DocumentHTML().find("Zelle 8")+1); QApplication::processEvents();
  int n=0; QObject::connect(s.document(), &QTextDocument::contentsChange, &s, [&](int a,int b,int c){ std::cerr<<"change "<<a<<" "<<b<<" "<<c<<"\n"; ++n;});
  auto page = s.page(); auto text = s.DocumentHTML();
  QElapsedTimer e; e.start(); auto p2 = readSurfacePage(text); std::cerr<<"read "<<double(e.nsecsElapsed())/1e6<<"\n";
  e.restart(); [[maybe_unused]] auto d=differenceOf(page,p2); std::cerr<<"diff "<<double(e.nsecsElapsed())/1e6<<"\n";
  e.restart(); s.type("x"); std::cerr<<"key "<<double(e.nsecsElapsed())/1e6<<" changes "<<n<<"\n";
  QTextCursor c = s.textCursor(); e.restart(); c.insertText("x"); std::cerr<<"insert "<<double(e.nsecsElapsed())/1e6<<"\n";
  e.restart(); c.insertText("x", c.charFormat()); std::cerr<<"insert "<<double(e.nsecsElapsed())/1e6<<"\n";
}
}}
