// Measures a picture in the document that this script is put into, and leaves what it finds as JSON
// in an element with the id "measured".
(() => {
  const all = (selector, root = document) => [...root.querySelectorAll(selector)];
  const box = element => {
    const { x, y, width, height } = element.getBoundingClientRect();
    return { x: x + scrollX, y: y + scrollY, width, height };
  };
  const colour = (element, property) =>
    getComputedStyle(element)[property].match(/[\d.]+/g).slice(0, 3).map(Number);
  const label = element => ({ text: element.textContent, box: box(element) });
  const isSeen = element => {
    const { x, y, width, height } = element.getBoundingClientRect();
    const met = document.elementFromPoint(x + width / 2, y + height / 2);
    return met !== null && element.contains(met);
  };
  const letterOf = element => element.querySelector('.letter');

  const block = element => {
    const rect = element.querySelector('rect');
    const letter = letterOf(element);
    return {
      pool: Number(element.dataset.pool),
      block: Number(element.dataset.block),
      box: box(rect),
      fill: colour(rect, 'fill'),
      letter: letter ? letter.textContent : '',
      letterBox: box(letter ?? rect),
      hover: element.querySelector('title').textContent,
      isSeen: isSeen(element),
    };
  };

  const line = element => {
    const letter = letterOf(element).textContent;
    return {
      letter,
      text: element.textContent.slice(letter.length),
      box: box(element),
      fill: colour(element.querySelector('rect'), 'fill'),
      isSeen: isSeen(element),
    };
  };

  // What the pointer does to the map, which only a page has.
  const pointed = () => {
    const first = document.querySelector('.legend li');
    if (!first) return { lit: [], isDimmedBehind: false };
    const faint = () => all('.map.dimmed .block:not(.lit)').length > 0;
    first.dispatchEvent(new MouseEvent('mouseenter'));
    const lit = faint() ? all('.map.dimmed .block.lit') : [];
    const names = lit.map(({ dataset }) => `${dataset.pool}:${dataset.block}`);
    first.dispatchEvent(new MouseEvent('mouseleave'));
    return { lit: names, isDimmedBehind: faint() };
  };

  const paper = document.querySelector('.paper');
  const measured = {
    blocks: all('.block').map(block),
    legend: all('.legend li, g.legend').map(line),
    pools: all('.pool').map(label),
    notes: all('.note').map(label),
    beyond: all('.beyond li, text.beyond').map(element => element.textContent),
    paper: paper ? colour(paper, 'fill') : colour(document.body, 'backgroundColor'),
    ink: colour(document.querySelector('.pool'), 'fill'),
    fetched: performance.getEntriesByType('resource').length,
    faults: all('parsererror').map(element => element.textContent).concat(window.faults ?? []),
    ...pointed(),
  };
  const result = document.createElement('pre');
  result.id = 'measured';
  result.textContent = JSON.stringify(measured);
  document.documentElement.append(result);
})();
