import SwiftUI

// SVG
struct Group1: View {

  // Nested Groups and Shapes

  // SVG
  struct Group2: View {

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          EmptyView() // Group w/o content
            .frame(width: 7, height: proxy.size.height,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 7,
                         y: 1.0)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        EmptyView() // Group w/o content
      }
    }
  }

  // SVG
  struct Group3: View {

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          EmptyView() // Group w/o content
            .frame(width: proxy.size.width, height: 7,
                   alignment: .topLeading)
            .scaleEffect(x: 1.0,
                         y: proxy.size.height / 7)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        EmptyView() // Group w/o content
      }
    }
  }

  // SVG
  struct Group4: View {

    // Nested Groups and Shapes

    struct Reactangle1: View {

      static let intrinsicSize = CGSize(width: 1, height: 1)

      var body: some View {
        Rectangle()
          .fill(Color.black)
      }
    }

    var isResizable = false
    func resizable() -> Self { Self(isResizable: true) }

    var body: some View {
      if isResizable {
        GeometryReader { proxy in
          Reactangle1()
            .frame(width: 1, height: 1, alignment: .topLeading)
            .frame(width: 100, height: proxy.size.height,
                   alignment: .topLeading)
            .scaleEffect(x: proxy.size.width  / 100,
                         y: 1.0)
            .frame(width: proxy.size.width, height: proxy.size.height)
        }
      }
      else {
        Reactangle1()
          .frame(width: 1, height: 1, alignment: .topLeading)
      }
    }
  }

  var isResizable = false
  func resizable() -> Self { Self(isResizable: true) }

  var body: some View {
    if isResizable {
      GeometryReader { proxy in
        ZStack(alignment: .topLeading) {
          Group2()
            .resizable()
          Group3()
            .resizable()
          Group4()
            .resizable()
        }
        .frame(width: proxy.size.width, height: 50,
               alignment: .topLeading)
        .scaleEffect(x: 1.0,
                     y: proxy.size.height / 50)
        .frame(width: proxy.size.width, height: proxy.size.height)
      }
    }
    else {
      ZStack(alignment: .topLeading) {
        Group2()
          .resizable()
        Group3()
          .resizable()
        Group4()
          .resizable()
      }
    }
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .resizable()
        .frame(width: 128, height: 128)
        .background(Color.clear.border(Color.green))
        .padding()
    }
  }
}
