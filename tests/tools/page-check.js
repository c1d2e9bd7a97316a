// Runs inside a copy of a page, in a browser: finds what a reader would stumble over, and leaves its findings as the title.
(() => {
  const findings = [];
  const shown = (element) => element.getClientRects().length > 0 && getComputedStyle(element).visibility === "visible";

  // A piece of the fare calculation explains itself when it has the focus, and only then.
  for (const piece of document.querySelectorAll(".calculation .piece")) {
    const tip = piece.querySelector(":scope > .tip");
    if (shown(tip)) findings.push("shown without focus: " + tip.textContent);
    piece.focus();
    if (document.activeElement !== piece) findings.push("takes no focus: " + piece.textContent);
    piece.classList.add("focused");
    if (!shown(tip)) findings.push("not shown with focus: " + tip.textContent);
    const open = [...document.querySelectorAll(".tip")].filter(shown);
    if (document.documentElement.scrollWidth > innerWidth) findings.push("an explanation widens the page: " + tip.textContent);
    if (open.length > 1) findings.push("several explanations at once");
    piece.classList.remove("focused");
  }

  // Text has a contrast of 4.5 or more with what is behind it.
  const parts = (colour) => colour.match(/[\d.]+/g).map(Number);
  const light = (colour) => {
    const [r, g, b] = parts(colour).map((part) => {
      const share = part / 255;
      return share <= 0.04045 ? share / 12.92 : ((share + 0.055) / 1.055) ** 2.4;
    });
    return 0.2126 * r + 0.7152 * g + 0.0722 * b;
  };
  const background = (element) => {
    for (let at = element; at; at = at.parentElement) {
      const colour = getComputedStyle(at).backgroundColor;
      if (parts(colour)[3] !== 0) return colour;
    }
    return "rgb(255, 255, 255)";
  };
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  for (let node = walker.nextNode(); node; node = walker.nextNode()) {
    const element = node.parentElement;
    if (!node.data.trim() || !shown(element)) continue;
    const [a, b] = [light(getComputedStyle(element).color), light(background(element))].sort((x, y) => y - x);
    const contrast = (a + 0.05) / (b + 0.05);
    if (contrast < 4.5) findings.push(`contrast ${contrast.toFixed(2)}: ${node.data.trim()}`);
  }

  // Nothing makes the page wider than the window; headings leave out no level.
  if (document.documentElement.scrollWidth > innerWidth) findings.push("wider than the window");
  let level = 0;
  for (const heading of document.querySelectorAll("h1, h2, h3, h4")) {
    const next = Number(heading.tagName[1]);
    if (next > level + 1) findings.push("a heading leaves out a level: " + heading.textContent);
    level = next;
  }
  const isDark = light(getComputedStyle(document.body).backgroundColor) < 0.1;
  document.title = `findings: ${[...new Set(findings)].join("; ") || "none"} | ${isDark ? "dark" : "light"} | ${innerWidth}`;
})();
