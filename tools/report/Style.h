// The style sheet of a ticket's page, which is part of the page.
#pragma once

#include "tools/report/Html.h"

namespace qorltst::report {

/// Light, dark as the reader's system is, and black on white on paper. Nothing is told by colour alone.
inline constexpr Markup kStyle = R"(
:root { --ink: #1c2430; --soft: #4d5866; --paper: #fff; --panel: #f3f5f8; --line: #c3cad4; --accent: #0b57a4;
  --good: #17663a; --bad: #a3231b; --warn: #fdf1d8; --warn-ink: #6b4400; --city: #0b57a4; --carrier: #7a2e8a;
  --money: #17663a; --tip: #1c2430; --tip-ink: #fff; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #e6eaf0; --soft: #a9b4c2; --paper: #14181e; --panel: #1e242d; --line: #3b4552; --accent: #7cb7f5;
    --good: #74cf9b; --bad: #f59a92; --warn: #3a2f14; --warn-ink: #f3d489; --city: #7cb7f5; --carrier: #dba0ea;
    --money: #74cf9b; --tip: #e6eaf0; --tip-ink: #14181e; } }
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 72rem; padding: 0 1rem 3rem; background: var(--paper); color: var(--ink);
  font: 16px/1.5 system-ui, sans-serif; }
a { color: var(--accent); }
:focus-visible { outline: 3px solid var(--accent); outline-offset: 2px; }
main:focus { outline: none; }
h1 { margin: 1.2rem 0 0.2rem; font-size: 1.7rem; }
h2 { margin: 2rem 0 0.6rem; font-size: 1.25rem; border-bottom: 1px solid var(--line); }
h3 { margin: 0 0 0.4rem; font-size: 1rem; }
code, pre, .calculation, .log { font-family: ui-monospace, "DejaVu Sans Mono", monospace; }
.skip { position: absolute; left: -100rem; }
.skip:focus { left: 1rem; top: 0.5rem; background: var(--paper); padding: 0.3rem 0.6rem; z-index: 3; }
.spoken { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); white-space: nowrap; }
.banner p { margin: 0; color: var(--soft); }
.badge { display: inline-block; padding: 0 0.6rem; border: 1px solid currentColor; border-radius: 1rem; font-weight: 600; }
.good { color: var(--good); }
.bad { color: var(--bad); }
nav ul { display: flex; flex-wrap: wrap; gap: 0.2rem 1.2rem; margin: 0.6rem 0 0; padding: 0; list-style: none; }
table { border-collapse: collapse; width: 100%; }
caption { text-align: left; color: var(--soft); }
th, td { padding: 0.3rem 0.6rem; text-align: left; vertical-align: top; border-bottom: 1px solid var(--line); }
thead th { color: var(--soft); font-weight: 600; font-size: 0.85rem; white-space: nowrap; }
tbody th { font-weight: 600; }
.number { text-align: right; font-variant-numeric: tabular-nums; }
.wide { overflow-x: auto; }
.route { display: flex; flex-wrap: wrap; margin: 1rem 0; padding: 0; list-style: none; row-gap: 1.2rem; }
.route li { position: relative; flex: 1 1 9rem; min-width: 9rem; padding-top: 1.2rem; }
.route li::before { content: ""; position: absolute; top: 0.45rem; left: 0; right: 0; border-top: 3px solid var(--accent); }
.route li::after { content: ""; position: absolute; top: 0; left: 0; width: 1rem; height: 1rem; border-radius: 50%;
  background: var(--paper); border: 3px solid var(--accent); }
.route .surface::before { border-top: 3px dotted var(--soft); }
.route .open::before { border-top-style: dashed; }
.route .end { flex: 0 0 4rem; min-width: 4rem; }
.route .end::before { display: none; }
.route .end::after { background: var(--accent); }
.route .place { display: block; font-size: 1.2rem; font-weight: 700; }
.route .connection { font-weight: 400; }
.route .leg { display: block; padding-right: 1rem; color: var(--soft); font-size: 0.85rem; }
.fare { max-width: 34rem; }
.fare .sum th, .fare .sum td { border-top: 2px solid var(--ink); }
.fare .total th, .fare .total td { font-weight: 700; font-size: 1.1rem; }
.fare .aside th, .fare .aside td { color: var(--soft); font-weight: 400; }
.verdict::before { content: "\2022\a0"; }
.verdict.good::before { content: "\2713\a0"; }
.verdict.bad::before { content: "\2717\a0"; }
.calculation { position: relative; padding: 1rem; background: var(--panel); border-radius: 0.4rem; line-height: 2.2; }
.piece { border-bottom: 2px solid var(--line); cursor: help; }
.piece.whole { border-bottom: 0; padding: 0.15rem 0.2rem; box-shadow: inset 0 0 0 1px var(--line); border-radius: 0.2rem;
  -webkit-box-decoration-break: clone; box-decoration-break: clone; }
.piece.city { color: var(--city); font-weight: 600; }
.piece.carrier { color: var(--carrier); font-style: italic; }
.piece.money { color: var(--money); }
.calculation .piece:hover, .calculation .piece:focus { background: var(--warn); }
.tip { display: none; position: absolute; left: 0; top: 100%; z-index: 2; max-width: 100%;
  padding: 0.3rem 0.6rem; background: var(--tip); color: var(--tip-ink); border-radius: 0.3rem;
  font: 400 0.9rem/1.4 system-ui, sans-serif; white-space: normal; }
.piece:focus > .tip, .piece:hover:not(:has(.piece:hover)) > .tip { display: block; }
.pieces { margin-top: 0.6rem; }
.pieces table { width: auto; }
.pieces th { font-family: ui-monospace, monospace; font-weight: 400; }
.hint { color: var(--soft); font-size: 0.85rem; margin: 0.4rem 0; }
.cards { columns: 19rem; column-gap: 1rem; }
.card { break-inside: avoid; margin-bottom: 1rem; padding: 0.8rem 1rem; border: 1px solid var(--line); border-radius: 0.4rem; }
dl { display: grid; grid-template-columns: minmax(45%, auto) 1fr; column-gap: 0.8rem; margin: 0; }
dt { color: var(--soft); }
dd { margin: 0; text-align: right; overflow-wrap: anywhere; }
pre { overflow-x: auto; padding: 1rem; background: var(--panel); border-radius: 0.4rem; }
.warning { margin: 0.3rem 0; padding: 0.3rem 0.8rem 0.3rem 2rem; background: var(--warn); color: var(--warn-ink);
  border-left: 4px solid currentColor; }
.warning:target { outline: 3px solid var(--accent); }
.failure { padding: 0.6rem 1rem; border: 2px solid var(--bad); color: var(--bad); }
.log { font-size: 0.8rem; overflow-wrap: anywhere; }
@media (prefers-reduced-motion: no-preference) { html { scroll-behavior: smooth; } }
@media print {
  :root { --ink: #000; --soft: #333; --paper: #fff; --panel: #fff; --line: #999; --accent: #000; --good: #000; --bad: #000;
    --warn: #fff; --warn-ink: #000; --city: #000; --carrier: #000; --money: #000; }
  body { max-width: none; font-size: 10pt; padding: 0; }
  nav, .skip, .hint, summary, .tip { display: none !important; }
  details::details-content { display: block; content-visibility: visible; }
  .wide { overflow: visible; }
  .wide table { font-size: 8pt; }
  .card, tr, .route li, .calculation { break-inside: avoid; }
  h2, h3 { break-after: avoid; }
  th, td { padding: 0.15rem 0.3rem; }
})";

}  // namespace qorltst::report
