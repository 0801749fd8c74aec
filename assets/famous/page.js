/* SPDX-FileCopyrightText: 2026 The Quillmark authors
   SPDX-License-Identifier: GPL-3.0-or-later */
(() => {
  "use strict";

  const month = document.documentElement.dataset.month;
  const patience = 10000;
  const unreachable = "The list could not be fetched. This needs an internet connection.";
  const unusable = "The list could not be fetched. The encyclopedia answered, but without the list.";
  const feed = feedAddress();
  let named = null;

  // The tests' stand-in on this computer may take the encyclopedia's place, for a page of this computer.
  function feedAddress() {
    const asked = new URLSearchParams(location.search).get("feed") || "";
    const own = location.protocol === "file:" || ["localhost", "127.0.0.1"].includes(location.hostname);
    if (own && /^http:\/\/(127\.0\.0\.1|localhost)(:\d+)?\/$/.test(asked))
      return asked;
    return "https://en.wikipedia.org/api/rest_v1/feed/onthisday/births/";
  }

  function element(name, className, text) {
    const made = document.createElement(name);
    if (className)
      made.className = className;
    made.textContent = text;
    return made;
  }

  function yearText(year) {
    if (!Number.isInteger(year))
      return "";
    return year < 0 ? `${-year} BC` : String(year);
  }

  // The first page that the feed names for this person, if its address is a secure one.
  function pageOf(birth) {
    try {
      const address = new URL(birth.pages[0].content_urls.desktop.page);
      return address.protocol === "https:" ? address.href : null;
    } catch {
      return null;
    }
  }

  // "Albert Einstein, physicist": the name leads to the person's page.
  function person(birth) {
    const row = document.createElement("li");
    const who = element("span", "who", "");
    const page = pageOf(birth);
    if (page) {
      const comma = birth.text.indexOf(",");
      const end = comma > 0 ? comma : birth.text.length;
      const link = element("a", "", birth.text.slice(0, end));
      link.href = page;
      who.append(link, birth.text.slice(end));
    } else {
      who.textContent = birth.text;
    }
    row.append(element("span", "year", yearText(birth.year)), " ", who);
    return row;
  }

  function fill(list, births) {
    const known = births.filter((birth) => birth && typeof birth.text === "string" && birth.text.trim());
    if (known.length === 0) {
      list.replaceChildren(element("p", "note", "The encyclopedia names nobody for this day."));
      return;
    }
    const order = (birth) => (Number.isInteger(birth.year) ? birth.year : Infinity);
    known.sort((a, b) => (order(a) === order(b) ? 0 : order(a) - order(b)));
    const people = document.createElement("ul");
    people.setAttribute("role", "list");
    people.append(...known.map(person));
    const count = known.length === 1 ? "1 person" : `${known.length} people, the earliest first`;
    const said = element("p", "count", count);
    said.setAttribute("role", "status");
    list.replaceChildren(said, people);
  }

  function fail(section, message) {
    const note = element("p", "note failed", message + " ");
    note.setAttribute("role", "alert");
    const again = element("button", "", "Try again");
    again.type = "button";
    again.addEventListener("click", () => {
      section.querySelector("h2 button").focus();
      fetchList(section);
    });
    note.append(again);
    section.querySelector(".list").replaceChildren(note);
  }

  const running = new Map();
  const filled = new Set();

  async function fetchList(section) {
    if (running.has(section) || filled.has(section))
      return;
    const stop = new AbortController();
    const timer = setTimeout(() => stop.abort(), patience);
    running.set(section, stop);
    const list = section.querySelector(".list");
    const waiting = element("p", "note", "Fetching the list\u2026");
    waiting.setAttribute("role", "status");
    list.replaceChildren(waiting);
    let problem = unreachable;
    try {
      const answer = await fetch(`${feed}${month}/${section.id}`, {
        credentials: "omit",
        referrerPolicy: "no-referrer",
        signal: stop.signal,
      });
      const text = await answer.text();
      problem = unusable;
      if (!answer.ok)
        throw new Error(String(answer.status));
      fill(list, JSON.parse(text).births);
      filled.add(section);
    } catch {
      fail(section, problem);
    } finally {
      clearTimeout(timer);
      running.delete(section);
    }
    if (named === section)
      section.scrollIntoView();
  }

  function show(section, open) {
    section.querySelector("h2 button").setAttribute("aria-expanded", String(open));
    section.querySelector(".list").hidden = !open;
    if (open)
      fetchList(section);
    else if (running.has(section))
      running.get(section).abort();
  }

  // The address follows the day that was opened, so that coming back to the page opens it again.
  function nameInAddress(anchor) {
    try {
      history.replaceState(null, "", anchor ? `#${anchor}` : location.pathname + location.search);
    } catch {
      // The browser keeps the address as it is.
    }
  }

  function showNamed() {
    const anchor = location.hash.slice(1);
    named = /^\d\d$/.test(anchor) ? document.getElementById(anchor) : null;
    if (named)
      show(named, true);
  }

  for (const section of document.querySelectorAll("section")) {
    const button = section.querySelector("h2 button");
    button.addEventListener("click", () => {
      const open = button.getAttribute("aria-expanded") !== "true";
      named = null;
      if (open)
        nameInAddress(section.id);
      else if (location.hash === `#${section.id}`)
        nameInAddress("");
      show(section, open);
    });
  }
  // Once the reader moves, the page no longer scrolls by itself.
  for (const moved of ["wheel", "keydown", "pointerdown", "touchmove"])
    addEventListener(moved, () => { named = null; }, { passive: true });
  addEventListener("hashchange", showNamed);
  showNamed();
})();
